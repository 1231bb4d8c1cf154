#include "workbench/analysis/orbit_channels.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/analysis/bearing_properties.h"

namespace Rotavue::Workbench {
namespace {

using HostKit::ChannelDescription;

const ChannelStyle Style{.name = "Bearing \xC2\xB5", .color = 0x1234, .decimals = 2};

Recording firstOrderOnly() {
    Recording recording = generate({.orders = {{1.0, {40, 30}, {20, 250}}}});
    recording.machine.clearanceWidth = 150.0;
    return recording;
}

AveragedOrbit smallOrbit() {
    AveragedOrbit orbit;
    orbit.pointsPerTurn = 8;
    orbit.x = {1, 2, 3, 4, 5, 6, 7, 8};
    orbit.y = {11, 12, 13, 14, 15, 16, 17, 18};
    return orbit;
}

void expectOneArray(const ChannelDescription& channel, std::int32_t elements) {
    EXPECT_TRUE(channel.array);
    EXPECT_FALSE(channel.asynchronous);
    EXPECT_EQ(channel.sampleCount, 1);
    EXPECT_EQ(channel.arraySize, elements);
    EXPECT_EQ(channel.bufferSize, 1);
}

TEST(OrbitChannels, AverageIsAnArrayByAngle) {
    const Recording recording = firstOrderOnly();
    ChannelDescription channel = averageChannel(smallOrbit(), recording, Style);
    expectOneArray(channel, 8);
    EXPECT_EQ(channel.name, L"Bearing \u00B5");
    EXPECT_EQ(channel.unit, L"um");
    EXPECT_EQ(channel.color, 0x1234u);
    EXPECT_EQ(channel.decimals, 2);
    ASSERT_EQ(channel.axes->size(), 1u);
    EXPECT_EQ(channel.axes->front().start, 0.0);
    EXPECT_EQ(channel.axes->front().step, 45.0);
    EXPECT_EQ(channel.values[4], smallOrbit().x);
    EXPECT_EQ(channel.values[5], smallOrbit().y);
    EXPECT_EQ(channel.properties.at(L"OrbitType"), L"Average");
    EXPECT_EQ(channel.properties.at(L"OrbitAnalysisChannelType"), L"Orbit");
}

TEST(OrbitChannels, AllCarryTheBearingOfTheRecording) {
    const Recording recording = firstOrderOnly();
    const ChannelDescription channels[] = {
        averageChannel(smallOrbit(), recording, Style),
        referenceChannel({smallOrbit(), "", "", 12, 13}, recording, Style),
        harmonicChannel({}, recording, Style),
        subSyncChannel({{1}, {2}, "", {}, {}}, recording, Style),
        shaftCenterChannel({}, recording, Style),
    };
    const wchar_t* const kinds[] = {L"Average", L"Reference", L"Harmonic", L"SubSync", L""};
    for (std::size_t i = 0; i < std::size(channels); ++i) {
        for (const auto& [name, text] : bearingProperties(recording.machine))
            EXPECT_EQ(channels[i].properties.at(name), text);
        EXPECT_EQ(channels[i].properties.at(L"OrbitType"), kinds[i]);
    }
    EXPECT_EQ(channels[4].properties.at(L"OrbitAnalysisChannelType"), L"ShaftCenter");
}

TEST(OrbitChannels, HarmonicHoldsTheYProbeFirst) {
    // phi = 90 - lag: 90 gives a phasor along the real axis, 0 along the imaginary one.
    const Harmonics harmonics{
        .orders = {{1.0, {10, 90}, {30, 0}}, {2.0, {2, 270}, {5, 180}}}, .unit = "um", .span = {}};
    ChannelDescription channel = harmonicChannel(harmonics, firstOrderOnly(), Style);
    expectOneArray(channel, 4);
    const double expected[][2] = {{0, 30}, {0, -5}, {10, 0}, {-2, 0}};  // Y 1X, Y 2X, X 1X, X 2X
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_NEAR(channel.values[4][k], expected[k][0], 1e-12) << k;
        EXPECT_NEAR(channel.values[5][k], expected[k][1], 1e-12) << k;
    }
    EXPECT_EQ(channel.properties.at(L"Orbit Amplitude"), L"peak");
}

TEST(OrbitChannels, HarmonicIsWrittenInTheScaleThatItNames) {
    const Harmonics harmonics{.orders = {{1.0, {10, 90}, {10, 90}}}, .unit = "", .span = {}};
    const struct {
        AmplitudeScale scale;
        const wchar_t* text;
        double value;
    } cases[] = {{AmplitudeScale::Peak, L"peak", 10.0},
                 {AmplitudeScale::Rms, L"rms", 10.0 / 1.4142135623730951},
                 {AmplitudeScale::PeakPeak, L"peak-peak", 20.0}};
    for (const auto& one : cases) {
        ChannelDescription channel = harmonicChannel(harmonics, firstOrderOnly(), Style, one.scale);
        EXPECT_EQ(channel.properties.at(L"Orbit Amplitude"), one.text);
        EXPECT_NEAR(channel.values[4][0], one.value, 1e-12);
    }
}

// The trap between the conventions: the ellipse keeps its shape when sine and cosine are mixed up,
// and only its dot, which the graph draws at r sin(0 + phi), lands a quarter of a turn away.
TEST(OrbitChannels, DotOfTheFirstOrderLiesOnTheZeroAngleOfTheAveragedOrbit) {
    const Recording recording = firstOrderOnly();
    const ShaftTrack track(recording);
    const double orders[] = {1.0};
    ChannelDescription average = averageChannel(averageOrbit(recording, track), recording, Style);
    ChannelDescription harmonic =
        harmonicChannel(findHarmonics(recording, track, orders), recording, Style);
    const auto dot = [&](std::size_t element) {
        const double real = harmonic.values[4][element];
        const double imaginary = harmonic.values[5][element];
        return std::hypot(real, imaginary) * std::sin(std::atan2(imaginary, real));
    };
    EXPECT_NEAR(dot(1), average.values[4][0], 0.01);  // X: 40 cos(30) = 34.64
    EXPECT_NEAR(dot(0), average.values[5][0], 0.01);  // Y: 20 cos(250) = -6.84
    EXPECT_NEAR(dot(1), 34.641, 0.01);
    EXPECT_NEAR(dot(0), -6.840, 0.01);
}

TEST(OrbitChannels, SubSyncHoldsEverySampleAndNoGap) {
    const double gap = std::numeric_limits<double>::quiet_NaN();
    const SubSyncOrbit orbit{{gap, 1, 2, gap, 4}, {gap, 6, 7, gap, 9}, "um", {}, {}};
    ChannelDescription channel = subSyncChannel(orbit, firstOrderOnly(), Style);
    EXPECT_FALSE(channel.array);
    EXPECT_EQ(channel.arraySize, 1);
    EXPECT_EQ(channel.sampleCount, 5);
    EXPECT_EQ(channel.sampleCounter, 5);
    EXPECT_EQ(channel.writePosition, 0);
    EXPECT_EQ(channel.sampleRate, 10'000.0);
    EXPECT_EQ(channel.values[4], (std::vector<double>{1, 1, 2, 2, 4}));
    EXPECT_EQ(channel.values[5], (std::vector<double>{6, 6, 7, 7, 9}));
}

TEST(OrbitChannels, ShaftCenterHoldsTheYProbeFirstWithTimeStamps) {
    const ShaftCenterHistory history{{{1, 2, 1500, 0.5}, {3, 4, 1600, 1.5}}, "um", 100.0, {}};
    ChannelDescription channel = shaftCenterChannel(history, firstOrderOnly(), Style);
    EXPECT_TRUE(channel.asynchronous);
    EXPECT_TRUE(channel.array);
    EXPECT_EQ(channel.arraySize, 4);
    EXPECT_EQ(channel.sampleCount, 2);
    EXPECT_EQ(channel.sampleRate, 0.0);
    EXPECT_EQ(channel.timestamps.list(), (std::vector<double>{0.5, 1.5}));
    EXPECT_EQ(channel.values[0], (std::vector<double>{2, 1, 1500, 100.5, 4, 3, 1600, 101.5}));
}

}  // namespace
}  // namespace Rotavue::Workbench
