#include "workbench/analysis/compensation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/analysis/orbit_summary.h"

namespace Rotavue::Workbench {
namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();
constexpr OrderVectors Motion{1.0, {7, 25}, {7, 115}};
constexpr OrderVectors First{1.0, {4, 150}, {3, 60}};
constexpr OrderVectors Second{2.0, {1.5, 120}, {2, 300}};

SlowRoll vectors() {
    SlowRoll slowRoll;
    slowRoll.first = First;
    slowRoll.second = Second;
    return slowRoll;
}

// Eight points a turn, x with one peak at angle 0 and y with one at 180 degrees.
SlowRoll peaks() {
    SlowRoll slowRoll;
    slowRoll.x = {8, 0, 0, 0, 0, 0, 0, 0};
    slowRoll.y = {0, 0, 0, 0, 16, 0, 0, 0};
    return slowRoll;
}

// Sixteen samples a turn, the first at angle 0: two for each of eight points.
Recording still(double turnsAtFirst = 0.0) {
    return generate({.sampleRate = 800, .duration = 0.2, .firstTurn = turnsAtFirst});
}

Recording without(const Recording& recording, const SlowRoll& slowRoll, CompensationForm form) {
    return compensated(recording, ShaftTrack(recording), slowRoll, form);
}

void expectSame(const Recording& found, const Recording& truth, double tolerance) {
    ASSERT_EQ(found.sampleCount(), truth.sampleCount());
    for (std::size_t i = 0; i < truth.sampleCount(); ++i) {
        EXPECT_NEAR(found.x[i], truth.x[i], tolerance) << i;
        EXPECT_NEAR(found.y[i], truth.y[i], tolerance) << i;
    }
}

TEST(Compensation, VectorTakesBothOrdersAwayAndLeavesMotionAndMean) {
    GeneratedRotor rotor{.orders = {Motion, First, Second}, .xMean = -100, .yMean = 5};
    const Recording recording = generate(rotor);
    rotor.orders = {Motion};
    expectSame(without(recording, vectors(), CompensationForm::Vector), generate(rotor), 1e-9);
}

TEST(Compensation, WaveformIsTakenAwayPointByPoint) {
    const Recording result = without(still(), peaks(), CompensationForm::Waveform);
    for (std::size_t turn = 0; turn < 10; ++turn) {
        for (std::size_t point = 0; point < 8; ++point) {
            const std::size_t i = 16 * turn + 2 * point;
            EXPECT_NEAR(result.x[i], point == 0 ? -8.0 : 0.0, 1e-9) << i;
            EXPECT_NEAR(result.y[i], point == 4 ? -16.0 : 0.0, 1e-9) << i;
        }
    }
}

TEST(Compensation, WaveformIsACubicBetweenItsPointsAlsoOverTheEndOfATurn) {
    // Halfway between the middle two of four points the cubic is (-a + 9 b + 9 c - d) / 16 of them.
    const Recording result = without(still(), peaks(), CompensationForm::Waveform);
    const double beside = -8.0 * 9.0 / 16.0;
    const double next = 8.0 / 16.0;
    const double expected[] = {beside, next, 0, 0, 0, 0, next, beside};
    for (std::size_t turn = 0; turn < 10; ++turn) {
        for (std::size_t k = 0; k < 8; ++k)
            EXPECT_NEAR(result.x[16 * turn + 2 * k + 1], expected[k], 1e-9) << turn << ' ' << k;
    }
}

TEST(Compensation, VectorLeavesWhatIsNoOrderOneOrTwo) {
    // The peak of 8 in one of eight points has 1X and 2X of 2 each: 2 / 8 * 8, lag 0.
    SlowRoll slowRoll = peaks();
    slowRoll.first = {1.0, {2, 0}, {}};
    slowRoll.second = {2.0, {2, 0}, {}};
    Recording recording = still();
    for (std::size_t i = 0; i < recording.sampleCount(); i += 16)
        recording.x.edit()[i] = 8;
    const Recording vector = without(recording, slowRoll, CompensationForm::Vector);
    const Recording waveform = without(recording, slowRoll, CompensationForm::Waveform);
    EXPECT_NEAR(vector.x[16], 8.0 - 2.0 - 2.0, 1e-9);
    EXPECT_NEAR(vector.x[24], 0.0 + 2.0 - 2.0, 1e-9);  // half a turn on: -2 of 1X, 2 of 2X
    EXPECT_NEAR(waveform.x[16], 0.0, 1e-9);
    EXPECT_NEAR(waveform.x[24], 0.0, 1e-9);
}

TEST(Compensation, AMotionAgainstTheRotationComesOutFromUnderForwardRunOut) {
    // Right and up, counter-clockwise: run-out of 20 turns forward, the shaft's own 5 backward.
    // The sum is 25 to the right and 15 upward, and looks forward.
    const OrderVectors forward{1.0, {20, 0}, {20, 90}};
    const OrderVectors backward{1.0, {5, 0}, {5, 270}};
    Recording recording = generate({.orders = {forward, backward}});
    recording.machine.rotation = Rotation::CounterClockwise;
    SlowRoll slowRoll;
    slowRoll.first = forward;
    const std::vector<double> orders{1.0};
    const auto precession = [&](const Recording& one) {
        return summarize(one, ShaftTrack(one), orders).orders.at(0).ellipse.precession;
    };
    EXPECT_EQ(precession(recording), Precession::Forward);
    EXPECT_EQ(precession(without(recording, slowRoll, CompensationForm::Vector)),
              Precession::Backward);
}

TEST(Compensation, FollowsTheAngleThroughARunUp) {
    GeneratedRotor rotor{.duration = 4, .firstSpeed = 300, .lastSpeed = 3000};
    rotor.orders = {Motion, First, Second};
    const Recording recording = generate(rotor);
    rotor.orders = {Motion};
    // Before the first mark the recording's own angle holds, between marks that of the track.
    expectSame(without(recording, vectors(), CompensationForm::Vector), generate(rotor), 0.01);
}

TEST(Compensation, WhereTheShaftStandsTheRecordingsAngleHolds) {
    Recording recording = still();
    const std::size_t begin = 86;  // 3/8 of turn 5: a point without a peak
    std::vector<double> angle(recording.angle.begin(), recording.angle.begin() + begin);
    angle.insert(angle.end(), 500, 0.0);  // it stands at the peak of x
    recording.angle.edit().resize(begin);
    recording.angle.edit().insert(recording.angle.edit().end(), angle.begin() + 80, angle.end());
    recording.angle.edit().insert(recording.angle.edit().end(), angle.begin(), angle.end() - 500);
    recording.x.edit().assign(recording.angle.size(), 0.0);
    recording.y.edit().assign(recording.angle.size(), 0.0);
    const Recording result = without(recording, peaks(), CompensationForm::Waveform);
    EXPECT_NEAR(result.x[400], -8.0, 1e-9);
    EXPECT_NEAR(result.y[400], 0.0, 1e-9);
}

TEST(Compensation, GapsStayGapsAndTheOtherProbeIsStillCompensated) {
    Recording recording = still();
    recording.x.edit()[16] = Gap;
    const Recording result = without(recording, peaks(), CompensationForm::Waveform);
    EXPECT_TRUE(std::isnan(result.x[16]));
    EXPECT_NEAR(result.x[32], -8.0, 1e-9);
    EXPECT_NEAR(result.y[24], -16.0, 1e-9);
}

TEST(Compensation, AnAcCoupledRecordingIsCompensatedLikeAnyOther) {
    Recording recording = generate({.orders = {First, Second}});
    recording.coupling = Coupling::Ac;
    const Recording result = without(recording, vectors(), CompensationForm::Vector);
    EXPECT_EQ(result.coupling, Coupling::Ac);
    for (const double value : result.x)
        EXPECT_NEAR(value, 0.0, 1e-9);
}

TEST(Compensation, ChangesNothingButTheProbes) {
    Recording recording = still();
    recording.machine.machine = "Kit";
    recording.notes = {"a note"};
    const Recording result = without(recording, peaks(), CompensationForm::Waveform);
    EXPECT_EQ(result.angle, recording.angle);
    EXPECT_EQ(result.notes, recording.notes);
    EXPECT_EQ(result.machine.machine, "Kit");
    EXPECT_EQ(result.sampleRate, recording.sampleRate);
}

/// What is told of compensating 10,000 samples, 16 of a turn.
std::vector<double> partsOf(CompensationForm form) {
    const Recording recording = generate({.sampleRate = 800, .duration = 12.5, .firstTurn = 0.0});
    SlowRoll slowRoll = peaks();
    std::vector<double> parts;
    compensated(recording, ShaftTrack(recording), slowRoll, form, ReadingProgress([&](double part) {
                    parts.push_back(part);
                    return true;
                }));
    return parts;
}

TEST(Compensation, TellsHowFarItIsToTheEnd) {
    for (const CompensationForm form : {CompensationForm::Vector, CompensationForm::Waveform}) {
        const std::vector<double> parts = partsOf(form);
        // 4096 samples a word, and one word each for what is before and behind the marks.
        EXPECT_GE(parts.size(), 3U);
        EXPECT_LE(parts.size(), 5U);
        EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
        EXPECT_LE(parts.front(), 0.4096);
        EXPECT_EQ(parts.back(), 1.0);
    }
}

TEST(Compensation, EndsAtTheNextBlockWhenItIsCancelled) {
    const Recording turning = generate({.sampleRate = 800, .duration = 12.5, .firstTurn = 0.0});
    Recording standing = turning;
    standing.angle.edit().assign(standing.sampleCount(), 90.0);
    for (const Recording& recording : {turning, standing}) {
        int blocks = 0;
        const ReadingProgress cancelled([&](double) { return ++blocks < 2; });
        EXPECT_THROW(compensated(recording, ShaftTrack(recording), peaks(),
                                 CompensationForm::Waveform, cancelled),
                     ReadingCancelled);
        EXPECT_EQ(blocks, 2);
    }
}

TEST(Compensation, RefusesTheRunOutOfAnotherPlaceInOneLine) {
    const auto changed = [](auto&& change) {
        SlowRoll slowRoll = peaks();
        change(slowRoll);
        return slowRoll;
    };
    Recording recording = still();
    recording.machine.point = "Bearing 1";
    recording.machine.rotation = Rotation::Clockwise;
    const struct {
        SlowRoll slowRoll;
        std::string line;
    } cases[] = {
        {changed([](SlowRoll& s) { s.xAngle = 45; }),
         "with the X probe at 45 degrees, and the recording has it at 90"},
        {changed([](SlowRoll& s) { s.yAngle = 315; }),
         "with the Y probe at 315 degrees, and the recording has it at 0"},
        {changed([](SlowRoll& s) { s.tachoAngle = 90; }),
         "with the keyphasor at 90 degrees, and the recording has it at 0"},
        {changed([](SlowRoll& s) { s.unit = "mil"; }),
         "with the unit \"mil\", and the recording has \"um\""},
        {changed([](SlowRoll& s) { s.point = "Bearing 2"; }),
         "with the point \"Bearing 2\", and the recording has \"Bearing 1\""},
        {changed([](SlowRoll& s) { s.rotation = Rotation::CounterClockwise; }),
         "with the rotation CCW, and the recording has CW"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(refusalOf([&] { without(recording, one.slowRoll, CompensationForm::Waveform); }),
                  "the run-out was taken " + one.line);
    EXPECT_EQ(
        refusalOf([&] { without(withoutKeyphasor(recording), peaks(), CompensationForm::Vector); }),
        "run-out is taken away by the shaft's angle, and the recording has no keyphasor");
}

TEST(Compensation, PicturesSayWhichForm) {
    EXPECT_EQ(compensationText(CompensationForm::Vector), "run-out compensated: 1X, 2X vector");
    EXPECT_EQ(compensationText(CompensationForm::Waveform), "run-out compensated: waveform");
}

TEST(Compensation, TakesRunOutOfAnotherRecordingOnlyByTheAnglesFromAMark) {
    const std::string refusal =
        "the run-out was taken from another recording, and without one pulse a turn (or a ramp) in "
        "both nobody knows at which angles it belongs";
    const auto refusedOf = [](const Recording& recording, const SlowRoll& slowRoll) {
        return refusalOf([&] { checkCompensable(recording, slowRoll); });
    };
    Recording recording = still();
    recording.file = "run.csv";
    SlowRoll slowRoll = peaks();
    slowRoll.file = "slow.csv";
    EXPECT_NO_THROW(checkCompensable(recording, slowRoll));
    slowRoll.hasMark = false;
    EXPECT_EQ(refusedOf(recording, slowRoll), refusal);
    slowRoll.file = recording.file;  // a stretch of the same one
    EXPECT_NO_THROW(checkCompensable(recording, slowRoll));
    recording.pulsesPerTurn = 3;
    EXPECT_NO_THROW(checkCompensable(recording, slowRoll));
    slowRoll.file = "slow.csv";
    slowRoll.hasMark = true;
    EXPECT_EQ(refusedOf(recording, slowRoll), refusal);
}

}  // namespace
}  // namespace Rotavue::Workbench
