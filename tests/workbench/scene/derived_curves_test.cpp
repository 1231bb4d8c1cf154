#include "workbench/scene/derived_curves.h"

#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/analysis/machine_frame.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

using HostKit::ChannelDescription;

/// 3000 rpm at 10 kHz, 0.25 turns at the first sample: turns begin at 0.015, 0.035 .. s.
class DerivedCurvesTest : public testing::Test {
protected:
    ChannelDescription make(CurveKind kind, const ShownSpan& span) const {
        DerivedCurves derived(recording_, track_, span, {});
        return derived.make({.kind = kind, .orders = {1.0}}, {.name = "curve"});
    }

    static ProbeValues at(const ChannelDescription& channel, std::size_t element) {
        const auto index = static_cast<std::int64_t>(element);
        return {channel.values.at(index, 4), channel.values.at(index, 5)};
    }

    const Recording recording_ = generate(
        {.orders = {{1.0, {40, 30}, {35, 121}}, {2.0, {8, 60}, {6, 333}}, {0.5, {5, 0}, {5, 90}}},
         .xMean = -20});
    const ShaftTrack track_{recording_};
    const ShownSpan eightTurns_{.byTurns = true, .turns = 8, .turnsThere = 8, .time = 0.9};
};

// The newest turn before 0.9 s ends at 0.895 s, so the eighth begins at 0.735 s, sample 7350.
TEST_F(DerivedCurvesTest, ByAngleIsTheTurnsThatTheRawOrbitShows) {
    const ChannelDescription channel = make(CurveKind::ByAngle, eightTurns_);
    EXPECT_EQ(channel.arraySize, 8 * 256);
    EXPECT_EQ(channel.properties.at(L"OrbitType"), L"Average");
    for (const std::size_t turn : {0U, 3U, 7U}) {
        const std::size_t sample = 7350 + 200 * turn;
        EXPECT_NEAR(at(channel, 256 * turn).x, recording_.x[sample], 0.05) << turn;
        EXPECT_NEAR(at(channel, 256 * turn).y, recording_.y[sample], 0.05) << turn;
    }
}

// 100 ms hold at least four whole turns of 20 ms.
TEST_F(DerivedCurvesTest, ByMillisecondsItIsTheirWholeTurns) {
    const ShownSpan span{.milliseconds = 100.0, .time = 0.9, .sample = 1e-4};
    EXPECT_EQ(make(CurveKind::ByAngle, span).arraySize, 4 * 256);
}

// Of 40 at lag 30, 8 at lag 60 and 5 at lag 0 the first goes: at the pulses of even and odd turns
// -20 + 8 cos(60) + 5 = -11 and -20 + 8 cos(60) - 5 = -21 are left.
TEST_F(DerivedCurvesTest, NotFirstIsWhatTheFirstOrderLeaves) {
    const ChannelDescription channel = make(CurveKind::NotFirst, eightTurns_);
    ASSERT_EQ(channel.arraySize, 8 * 256);
    const double even = at(channel, 0).x;
    const double odd = at(channel, 256).x;
    EXPECT_NEAR(std::max(even, odd), -11.0, 0.05);
    EXPECT_NEAR(std::min(even, odd), -21.0, 0.05);
}

TEST_F(DerivedCurvesTest, NotFirstAndFirstTogetherAreTheTurns) {
    const ChannelDescription turns = make(CurveKind::ByAngle, eightTurns_);
    const ChannelDescription left = make(CurveKind::NotFirst, eightTurns_);
    const OrderVectors first{1.0, {40, 30}, {35, 121}};
    for (std::size_t k = 0; k < 2048; ++k) {
        const double angle = static_cast<double>(k) / 256.0;
        const double y = at(left, k).y + first.y.valueAt(1.0, angle);
        EXPECT_NEAR(y, at(turns, k).y, 0.05) << k;
    }
}

}  // namespace

}  // namespace Rotavue::Workbench
