#include "workbench/analysis/orbit_summary.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"

namespace Rotavue::Workbench {
namespace {

constexpr double FirstAndSecond[] = {1.0, 2.0};

OrbitSummary summaryOf(const Recording& recording, const TimeSpan& span = {}) {
    return summarize(recording, ShaftTrack(recording), FirstAndSecond, span);
}

TEST(OrbitSummary, TellsDirectValuesAndOrders) {
    Recording recording =
        generate({.orders = {{1.0, {40, 30}, {20, 120}}}, .xMean = -100.0, .yMean = 50.0});
    recording.machine.rotation = Rotation::CounterClockwise;
    const OrbitSummary summary = summaryOf(recording);
    EXPECT_NEAR(summary.direct.peakPeak.x, 80.0, 0.1);
    EXPECT_NEAR(summary.direct.peakPeak.y, 40.0, 0.1);
    EXPECT_NEAR(summary.direct.smax, 40.0, 0.1);  // half the long axis
    ASSERT_TRUE(summary.direct.gap);
    EXPECT_NEAR(summary.direct.gap->x, -100.0, 0.1);
    EXPECT_NEAR(summary.direct.gap->y, 50.0, 0.1);
    EXPECT_NEAR(*summary.speed, 3000.0, 1e-6);
    ASSERT_EQ(summary.orders.size(), 2u);
    EXPECT_NEAR(summary.orders[0].vectors.x.amplitude, 40.0, 1e-3);
    EXPECT_EQ(summary.orders[0].ellipse.precession, Precession::Forward);
    EXPECT_NEAR(summary.orders[0].ellipse.counterClockwise, 30.0, 1e-3);
    EXPECT_NEAR(summary.orders[0].ellipse.clockwise, 10.0, 1e-3);
    EXPECT_TRUE(summary.notes.empty());
}

TEST(OrbitSummary, MeasuresSmaxInThePictureFromTheMeanPoint) {
    Recording recording;
    recording.sampleRate = 1.0;
    recording.x = {0, 0, 0, 6, std::numeric_limits<double>::quiet_NaN()};
    recording.y = {0, 0, 0, 8, 100};
    // The mean is (1.5, 2); the last pair is 4.5 and 6 away from it: 7.5.
    EXPECT_NEAR(summaryOf(recording).direct.smax, 7.5, 1e-12);
    EXPECT_EQ(summaryOf(recording).direct.peakPeak.y, 8.0);
}

TEST(OrbitSummary, SaysWhatThePlaceInTheBearingLacks) {
    using Notes = std::vector<std::string>;
    Recording recording = generate({.orders = {{1.0, {40, 30}, {20, 120}}}});
    const auto summaryInBearing = [&recording] {
        return summarize(recording, ShaftTrack(recording), FirstAndSecond, {}, ProbeValues{});
    };
    EXPECT_EQ(summaryInBearing().notes,
              Notes{"the shaft's place in its bearing needs the clearance, and probes that look "
                    "along two directions"});
    recording.machine.clearanceWidth = recording.machine.clearanceHeight = 200.0;
    EXPECT_EQ(summaryInBearing().notes, Notes{"the attitude angle needs the rotation"});
    recording.machine.rotation = Rotation::Clockwise;
    EXPECT_EQ(summaryInBearing().notes, Notes{});
}

TEST(OrbitSummary, KnowsNoGapOfAnAcCoupledRecording) {
    Recording recording = generate({.orders = {{1.0, {40, 30}, {20, 120}}}});
    recording.coupling = Coupling::Ac;
    EXPECT_FALSE(summaryOf(recording).direct.gap);
}

TEST(OrbitSummary, SaysWhyOrdersAreMissingAndGivesTheRest) {
    const Recording recording =
        withoutKeyphasor(generate({.orders = {{1.0, {40, 30}, {20, 120}}}}));
    const OrbitSummary summary = summaryOf(recording);
    EXPECT_FALSE(summary.speed);
    EXPECT_TRUE(summary.orders.empty());
    EXPECT_NEAR(summary.direct.peakPeak.x, 80.0, 0.1);
    ASSERT_EQ(summary.notes.size(), 1u);
    EXPECT_EQ(summary.notes[0],
              "the harmonic analysis needs the shaft's angle, and the recording has no keyphasor");
}

TEST(OrbitSummary, GivesTheSpeedWhereTheOrdersCannotBeTold) {
    const Recording recording =
        generate({.sampleRate = 190, .duration = 4.0, .orders = {{1.0, {40, 30}, {20, 120}}}});
    const OrbitSummary summary = summaryOf(recording);  // 3.8 samples a turn, too few for 2X
    EXPECT_NEAR(*summary.speed, 3000.0, 1.0);
    EXPECT_TRUE(summary.orders.empty());
    EXPECT_EQ(summary.notes.size(), 1u);
}

TEST(OrbitSummary, WarnsOfASpeedThatRuns) {
    const Recording recording = generate({.duration = 10.0, .firstSpeed = 1500});
    const OrbitSummary whole = summaryOf(recording);
    EXPECT_NEAR(*whole.speedFirst, 1500.0, 10.0);
    EXPECT_NEAR(*whole.speedLast, 3000.0, 10.0);
    ASSERT_EQ(whole.notes.size(), 1u);
    EXPECT_NE(whole.notes[0].find("the orders are means over that range"), std::string::npos);
    EXPECT_TRUE(summaryOf(recording, {9.5, 10.0}).notes.empty());
}

TEST(OrbitSummary, SaysWhereLagsCountFromNoMark) {
    Recording recording = generate({.orders = {{1.0, {7, 25}, {7, 115}}}});
    const std::vector<double> orders{1.0};
    EXPECT_EQ(summarize(recording, ShaftTrack(recording), orders).notes,
              std::vector<std::string>{});
    recording.keyphasorKind = KeyphasorKind::Speed;
    EXPECT_EQ(summarize(recording, ShaftTrack(recording), orders).notes,
              std::vector<std::string>{"the lags count from no mark on the shaft: compare them "
                                       "within this recording alone"});
}

TEST(OrbitSummary, RefusesAStretchWithoutSamples) {
    const Recording recording = generate({});
    EXPECT_EQ(refusalOf([&] {
                  summaryOf(recording, {5.0, 6.0});
              }),
              "there is no sample of both probes in that stretch of time");
}

}  // namespace
}  // namespace Rotavue::Workbench
