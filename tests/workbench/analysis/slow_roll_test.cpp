#include "workbench/analysis/slow_roll.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"

namespace Rotavue::Workbench {
namespace {

constexpr OrderVectors First{1.0, {4, 150}, {4, 60}};
constexpr OrderVectors Second{2.0, {1.5, 120}, {1.5, 300}};
constexpr OrderVectors Tenth{10.0, {0.5, 0}, {0.25, 90}};

// 300 rpm, 5 turns a second of 1,000 samples each; the first pulse after 3/4 of a turn.
GeneratedRotor slowRotor() {
    return {.sampleRate = 5000,
            .duration = 2,
            .firstSpeed = 300,
            .lastSpeed = 300,
            .orders = {First, Second, Tenth},
            .xMean = -90,
            .yMean = 20};
}

SlowRoll taken(const Recording& recording, const TimeSpan& span = {}, int points = 256) {
    return takeSlowRoll(recording, ShaftTrack(recording), span, points);
}

void expectNear(const FieldVector& found, const FieldVector& truth) {
    EXPECT_NEAR(found.amplitude, truth.amplitude, 1e-6);
    EXPECT_NEAR(degreesApart(found.phaseLag, truth.phaseLag), 0.0, 1e-5);
}

TEST(SlowRoll, TellsHowFarItIsAndEndsAtTheNextWordWhenItIsCancelled) {
    const Recording recording = generate(slowRotor());
    const ShaftTrack track(recording);
    std::vector<double> parts;
    const auto takeWhile = [&](std::size_t words) {
        parts.clear();
        takeSlowRoll(recording, track, {}, 256, ReadingProgress([&](double part) {
                         parts.push_back(part);
                         return parts.size() < words;
                     }));
    };
    takeWhile(100);
    EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
    // For either form one word of the turns' angles; one of the fit, and one for each of 9 turns.
    EXPECT_EQ(parts.size(), 2U + 1U + 9U);
    const std::size_t words = parts.size();
    for (std::size_t i = 1; i <= words; ++i) {
        EXPECT_THROW(takeWhile(i), ReadingCancelled);
        EXPECT_EQ(parts.size(), i);
    }
}

TEST(SlowRoll, VectorIsTheFirstTwoOrdersOfEachProbe) {
    const SlowRoll slowRoll = taken(generate(slowRotor()));
    expectNear(slowRoll.first.x, First.x);
    expectNear(slowRoll.first.y, First.y);
    expectNear(slowRoll.second.x, Second.x);
    expectNear(slowRoll.second.y, Second.y);
}

TEST(SlowRoll, WaveformIsTheMeanTurnByTheShaftsAngleWithoutItsMean) {
    for (const int points : {256, 512}) {
        const SlowRoll slowRoll = taken(generate(slowRotor()), {}, points);
        ASSERT_EQ(slowRoll.x.size(), static_cast<std::size_t>(points));
        ASSERT_EQ(slowRoll.y.size(), slowRoll.x.size());
        for (int k = 0; k < points; ++k) {
            const double turns = static_cast<double>(k) / points;
            double x = 0.0;
            double y = 0.0;
            for (const OrderVectors& order : {First, Second, Tenth}) {
                x += order.x.valueAt(order.order, turns);
                y += order.y.valueAt(order.order, turns);
            }
            EXPECT_NEAR(slowRoll.x[static_cast<std::size_t>(k)], x, 1e-4) << k;
            EXPECT_NEAR(slowRoll.y[static_cast<std::size_t>(k)], y, 1e-4) << k;
        }
    }
}

TEST(SlowRoll, StepIsExactSoThatEveryTurnBeginsOnTheGrid) {
    for (const int points : {256, 512}) {
        const double step =
            360.0 / static_cast<double>(taken(generate(slowRotor()), {}, points).x.size());
        for (int turn = 0; turn < 1000; ++turn)
            EXPECT_EQ(std::fmod(turn * points * step, 360.0), 0.0);
    }
}

TEST(SlowRoll, IsTakenFromTheMarkedStretchAlone) {
    // The speed rises from 300 to 600 rpm in 4 s; half a second around 1 s is at 375 rpm.
    GeneratedRotor rotor = slowRotor();
    rotor.duration = 4;
    rotor.lastSpeed = 600;
    const SlowRoll slowRoll = taken(generate(rotor), {0.75, 1.25});
    EXPECT_NEAR(slowRoll.speed, 375.0, 5.0);
    EXPECT_EQ(slowRoll.turns, 2);  // 3.1 turns pass, of which two begin and end with a pulse
}

TEST(SlowRoll, TellsWhatItIsOf) {
    Recording recording = generate(slowRotor());
    recording.machine.point = "Bearing 1";
    recording.machine.xAngle = 45;
    recording.machine.yAngle = 315;
    recording.machine.tachoAngle = 10;
    recording.machine.rotation = Rotation::Clockwise;
    const SlowRoll slowRoll = taken(recording);
    EXPECT_EQ(slowRoll.unit, "um");
    EXPECT_EQ(slowRoll.point, "Bearing 1");
    EXPECT_EQ(slowRoll.xAngle, 45.0);
    EXPECT_EQ(slowRoll.yAngle, 315.0);
    EXPECT_EQ(slowRoll.tachoAngle, 10.0);
    EXPECT_EQ(slowRoll.rotation, Rotation::Clockwise);
    EXPECT_NEAR(slowRoll.speed, 300.0, 1e-6);
    EXPECT_EQ(slowRoll.turns, 9);  // of 10 turns from 3/4 of one on
    EXPECT_TRUE(slowRoll.notes.empty());
}

TEST(SlowRoll, GapsAreLeftOut) {
    Recording recording = generate(slowRotor());
    for (std::size_t i = 2000; i < 2100; ++i)
        recording.x.edit()[i] = std::numeric_limits<double>::quiet_NaN();
    const SlowRoll slowRoll = taken(recording);
    EXPECT_EQ(slowRoll.turns, 8);
    // 10X is no part of the fit and leaks a little through the gap.
    EXPECT_NEAR(slowRoll.first.x.amplitude, First.x.amplitude, 1e-3);
    for (const double value : slowRoll.x)
        EXPECT_TRUE(std::isfinite(value));
}

TEST(SlowRoll, HighSpeedAndAcCouplingAreNoReasonToRefuseButAreTold) {
    GeneratedRotor rotor = slowRotor();
    rotor.firstSpeed = rotor.lastSpeed = 1200;
    Recording recording = generate(rotor);
    recording.coupling = Coupling::Ac;
    const SlowRoll slowRoll = taken(recording);
    ASSERT_EQ(slowRoll.notes.size(), 2u);
    EXPECT_EQ(slowRoll.notes[0],
              "run-out taken at 1200 rpm: above 1000 rpm the shaft's own motion is part of it");
    EXPECT_EQ(slowRoll.notes[1].find("run-out taken from an AC-coupled recording"), 0u);
}

TEST(SlowRoll, RefusesWhatCannotGiveItInOneLine) {
    const Recording recording = generate(slowRotor());
    Recording standing = recording;
    standing.angle.edit().assign(standing.angle.size(), 12.0);
    Recording broken = recording;
    for (std::size_t i = 0; i < broken.x.size(); i += 400)
        broken.x.edit()[i] = std::numeric_limits<double>::quiet_NaN();
    // Three samples a turn.
    const Recording coarse =
        generate({.sampleRate = 15, .duration = 4, .firstSpeed = 300, .lastSpeed = 300});
    const struct {
        Recording recording;
        TimeSpan span;
        std::string line;
    } cases[] = {
        {withoutKeyphasor(recording),
         {},
         "the run-out needs the shaft's angle, and the recording has no keyphasor"},
        {standing, {}, "the run-out needs a whole turn of the shaft, and it stands still"},
        {recording,
         {0.5, 0.6},
         "the run-out needs a whole turn of the shaft, and there is none between 0.5 s and 0.6 s"},
        {broken,
         {},
         "the run-out cannot be taken: the averaged orbit finds a gap in every stretch of 1 turns"},
        {coarse,
         {},
         "the run-out cannot be taken: 2X needs more than 4 samples a turn, and there are 3"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(refusalOf([&] { taken(one.recording, one.span); }).find(one.line), 0u)
            << one.line;
}

}  // namespace
}  // namespace Rotavue::Workbench
