#include "workbench/analysis/sub_synchronous.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/analysis/strongest_line.h"

namespace Rotavue::Workbench {
namespace {

constexpr OrderVectors First{1.0, {40, 30}, {40, 120}};
constexpr OrderVectors Second{2.0, {8, 60}, {8, 150}};
constexpr OrderVectors Whirl{0.43, {5, 20}, {5, 110}};

const GeneratedRotor Rotor{.duration = 4.0,
                           .firstSpeed = 1800,
                           .lastSpeed = 2400,
                           .orders = {First, Second, Whirl},
                           .xMean = -150};
const GeneratedRotor Steady{.duration = 4.0, .orders = {First, Second, Whirl}};

SubSyncOrbit filtered(const Recording& recording, const SubSyncOptions& options = {}) {
    return subSynchronousOrbit(recording, ShaftTrack(recording), options);
}

double largestError(const SubSyncOrbit& orbit, const GeneratedRotor& rotor) {
    double largest = 0.0;
    for (std::size_t i = 0; i < orbit.x.size(); ++i) {
        if (std::isnan(orbit.x[i])) continue;
        const double turns = rotor.turnsAt(static_cast<double>(i) / rotor.sampleRate);
        const double x = rotor.xMean + Whirl.x.valueAt(0.43, turns);
        const double y = Whirl.y.valueAt(0.43, turns);
        largest = std::max(largest, std::hypot(orbit.x[i] - x, orbit.y[i] - y));
    }
    return largest;
}

TEST(SubSync, IsTheWhirlWithTheMeanAtEverySampleWhileTheSpeedChanges) {
    const SubSyncOrbit orbit = filtered(generate(Rotor));
    EXPECT_EQ(orbit.x.size(), 40'000u);
    EXPECT_EQ(orbit.unit, "um");
    EXPECT_TRUE(orbit.notes.empty());
    EXPECT_LT(largestError(orbit, Rotor), 0.5);
}

TEST(SubSync, HasTheGapsOfTheRecordingAndIsRightBesideThem) {
    Recording recording = generate(Rotor);
    for (std::size_t i = 20'000; i < 20'020; ++i)
        recording.x.edit()[i] = std::numeric_limits<double>::quiet_NaN();
    const SubSyncOrbit orbit = filtered(recording);
    EXPECT_TRUE(std::isnan(orbit.x[20'010]) && std::isnan(orbit.y[20'010]));
    EXPECT_FALSE(std::isnan(orbit.x[19'999]) || std::isnan(orbit.x[20'020]));
    EXPECT_LT(largestError(orbit, Rotor), 1.0);
}

TEST(SubSync, IsGivenOnlyWhereTheShaftTurns) {
    Recording recording = generate(Steady);
    std::fill(recording.angle.edit().begin() + 15'000, recording.angle.edit().begin() + 25'000,
              200.0);
    const SubSyncOrbit orbit = filtered(recording);
    EXPECT_FALSE(std::isnan(orbit.x[100]) || std::isnan(orbit.x[39'900]));
    EXPECT_TRUE(std::isnan(orbit.x[20'000]));
    EXPECT_LT(largestError(orbit, Steady), 0.5);
}

TEST(SubSync, WorksWithoutKeyphasorAndSaysWhereFirstOrderIs) {
    const Recording recording = withoutKeyphasor(generate(Steady));
    const SubSyncOrbit found = filtered(recording);
    ASSERT_EQ(found.notes.size(), 1u);
    EXPECT_EQ(found.notes[0], "no keyphasor: 1X is taken at the strongest line, 50 Hz (3000 rpm)");
    EXPECT_LT(largestError(found, Steady), 0.5);
    const SubSyncOrbit given = filtered(recording, {.speed = 3000.0});
    EXPECT_EQ(given.notes[0], "no keyphasor: 1X is taken at 3000 rpm");
    EXPECT_LT(largestError(given, Steady), 0.5);
}

TEST(SubSync, RefusesWhatCannotBeHadInOneLine) {
    const Recording recording = generate({.orders = {First}});
    Recording standing = recording;
    std::fill(standing.angle.edit().begin(), standing.angle.edit().end(), 10.0);
    Recording noise = withoutKeyphasor(generate({.noise = 1.0}));
    const struct {
        Recording recording;
        SubSyncOptions options;
        const char* line;
    } cases[] = {
        {standing, {}, "needs 4 turns of the shaft in one go, and there are fewer"},
        {noise, {}, "needs the shaft's speed: there is no keyphasor, and no line stands out"},
        {noise, {.speed = -1.0}, "takes a speed above 0 rpm, not -1"},
        {noise, {.speed = 180.0}, "needs 4 turns of the shaft, and at that speed there are fewer"},
        {noise, {.speed = 1e300}, "needs 4 samples a turn or more, and there are 6e-295"},
        {recording,
         {.band = {0.8, 0.8}},
         "lets orders pass up to one above 0 and stops them from "
         "a higher one on, 1 at most, not 0.8 and 0.8"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(refusalOf([&] { filtered(one.recording, one.options); }),
                  std::string("the sub-synchronous orbit ") + one.line);
    }
}

TEST(StrongestLine, LiesBetweenTheBinsOfTheSpectrum) {
    // 4 s at 10 kHz: blocks of 32768 samples, 0.31 Hz a bin.
    for (const double speed : {1234.0, 1240.0, 1251.0}) {
        const Recording recording =
            generate({.duration = 4, .firstSpeed = speed, .lastSpeed = speed, .orders = {First}});
        EXPECT_NEAR(strongestLine(recording).value(), speed / 60.0, 0.01);
    }
}

TEST(StrongestLine, IsNoneInNoiseInStillnessAndInAFewSamples) {
    EXPECT_EQ(strongestLine(generate({.noise = 1.0})), std::nullopt);
    EXPECT_EQ(strongestLine(generate({.xMean = 5.0})), std::nullopt);
    EXPECT_EQ(strongestLine(generate({.duration = 0.006, .orders = {First}})), std::nullopt);
}

TEST(SubSync, AsksOftenWhetherItShallGoOnInEachOfItsSteps) {
    const Recording recording =
        generate({.duration = 40.0, .orders = {First, Whirl}});  // 400,000 samples, 2000 turns
    const ShaftTrack track(recording);
    std::vector<double> asked;
    const auto make = [&](std::size_t most) {
        asked.clear();
        subSynchronousOrbit(recording, track, {}, ReadingProgress([&](double part) {
                                asked.push_back(part);
                                return asked.size() < most;
                            }));
    };
    make(std::numeric_limits<std::size_t>::max());
    const std::size_t all = asked.size();
    EXPECT_TRUE(std::is_sorted(asked.begin(), asked.end()));
    double before = 0.0;
    for (const double end : {0.4, 0.7, 1.0}) {  // averaged, filtered, read back at the samples
        EXPECT_GE(std::count_if(asked.begin(), asked.end(),
                                [&](double part) { return part > before && part <= end; }),
                  4)
            << end;
        before = end;
    }
    for (std::size_t one = 1; one <= all; ++one) {
        EXPECT_THROW(make(one), ReadingCancelled);
        EXPECT_EQ(asked.size(), one);
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
