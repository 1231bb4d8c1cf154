#include "tests/workbench/analysis/generated_recording.h"
#include "tests/workbench/window/docks/loaded_control.h"
#include "workbench/analysis/averaged_orbit.h"
#include "workbench/analysis/harmonics.h"
#include "workbench/analysis/orbit_channels.h"
#include "workbench/analysis/raw_channels.h"
#include "workbench/analysis/shaft_track.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Rotavue::Workbench {
namespace {

using HostKit::ChannelDescription;

constexpr std::uint32_t CurveColor = 0x123456;

/// 1X alone, at probes 45 degrees left and right of the top.
Recording firstOrderOnly() {
    Recording recording = generate({.orders = {{1.0, {40, 30}, {20, 250}}}});
    recording.machine.xAngle = 45.0;
    recording.machine.yAngle = 315.0;
    return recording;
}

/// Where the built module puts the dots of a curve: the ellipses that it fills in its colour.
class KeyphasorDotTest : public ::testing::Test {
protected:
    KeyphasorDotTest() {
        control.load({{L"useManualMagnitudeLimits", L"True"},
                      {L"minXValue", L"-60"},
                      {L"maxXValue", L"60"},
                      {L"minYValue", L"-60"},
                      {L"maxYValue", L"60"}});
        control.host.record(HostKit::groups({HostKit::CallGroup::Draw}));
    }

    std::vector<std::string> dotsOf(ChannelDescription channel) {
        using Code = LoadedControl::Code;
        control.host.description.channels.clear();
        control.host.description.assigned = {};
        assignDerived(control.host.description, std::move(channel));
        showStored(control.host.description, recording.sampleRate, recording.sampleCount() - 1);
        control.send(Code::ChannelsChanged, {0});
        control.host.takeCalls();
        control.send(Code::Draw, {control.host.canvas(), 0, 0, 800, 800, 0, 0, 1});
        return filledIn(std::to_string(CurveColor), control.host.takeCalls());
    }

    /// The ellipses while the brush has that colour.
    static std::vector<std::string> filledIn(const std::string& color,
                                             const std::vector<std::string>& calls) {
        std::vector<std::string> dots;
        bool isOurs = false;
        for (const std::string& call : calls) {
            if (call.starts_with("IHostBrush.SetColor(")) {
                isOurs = call == "IHostBrush.SetColor(" + color + ")";
            }
            if (isOurs && call.starts_with("IHostCanvas.Ellipse(")) dots.push_back(call);
        }
        return dots;
    }

    Harmonics firstOrder() const {
        const double orders[] = {1.0};
        return findHarmonics(recording, ShaftTrack(recording), orders);
    }

    const Recording recording = firstOrderOnly();
    const ChannelStyle style{.name = "curve", .color = CurveColor};
    LoadedControl control;
};

// A field vector "A at lag L" is drawn with the phase 90 - L. Where that is mixed up, or X with Y,
// the ellipse keeps its shape and only the dot moves, which no eye sees.
TEST_F(KeyphasorDotTest, OfFirstOrderAndOfAverageAreTheSamePixels) {
    const auto average =
        dotsOf(averageChannel(averageOrbit(recording, ShaftTrack(recording)), recording, style));
    ASSERT_EQ(average.size(), 1U);
    EXPECT_EQ(dotsOf(harmonicChannel(firstOrder(), recording, style)), average);
}

TEST_F(KeyphasorDotTest, MovesWithThePhaseAndWithTheProbe) {
    const auto right = dotsOf(harmonicChannel(firstOrder(), recording, style));
    Harmonics swapped = firstOrder();
    std::swap(swapped.orders[0].x, swapped.orders[0].y);
    EXPECT_NE(dotsOf(harmonicChannel(swapped, recording, style)), right);
    Harmonics turned = firstOrder();
    for (FieldVector* vector : {&turned.orders[0].x, &turned.orders[0].y})
        vector->phaseLag += 90.0;
    EXPECT_NE(dotsOf(harmonicChannel(turned, recording, style)), right);
}

// The step of the angle is exact in binary: with 3.6 degrees all dots but the first would be lost
// to rounding.
TEST_F(KeyphasorDotTest, StandsAtEveryTurnOfADirectOrbitByAngle) {
    for (const int points : {256, 512}) {
        const AveragedOrbit orbit =
            averageOrbit(recording, ShaftTrack(recording),
                         {.revolutions = 8, .averages = 1, .pointsPerTurn = points});
        EXPECT_EQ(dotsOf(averageChannel(orbit, recording, style)).size(), 8U) << points;
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
