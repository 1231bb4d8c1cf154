#include "workbench/analysis/averaged_orbit.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"

namespace Rotavue::Workbench {
namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();
constexpr OrderVectors First{1.0, {40, 30}, {35, 121}};
constexpr OrderVectors Second{2.0, {8, 60}, {6, 333}};
constexpr OrderVectors Half{0.5, {10, 0}, {10, 90}};

AveragedOrbit averaged(const Recording& recording, const AverageOptions& options = {}) {
    return averageOrbit(recording, ShaftTrack(recording), options);
}

TEST(AveragedOrbit, IsTheOrbitByShaftAngleWithItsMean) {
    const Recording recording =
        generate({.firstSpeed = 2000, .orders = {First, Second}, .xMean = -100, .yMean = 5});
    const AveragedOrbit orbit = averaged(recording);
    ASSERT_EQ(orbit.x.size(), 256u);
    EXPECT_EQ(orbit.unit, "um");
    for (std::size_t k = 0; k < 256; ++k) {
        const double turns = static_cast<double>(k) / 256.0;
        const double x = -100 + First.x.valueAt(1, turns) + Second.x.valueAt(2, turns);
        const double y = 5 + First.y.valueAt(1, turns) + Second.y.valueAt(2, turns);
        EXPECT_NEAR(orbit.x[k], x, 0.01) << k;
        EXPECT_NEAR(orbit.y[k], y, 0.01) << k;
    }
}

TEST(AveragedOrbit, BeginsEveryTurnAtAnExactMultipleOf360) {
    for (const int points : {8, 256, 512, 4096}) {
        AveragedOrbit orbit;
        orbit.pointsPerTurn = points;
        for (int turn = 0; turn < 1024; ++turn)
            EXPECT_EQ(std::fmod(turn * points * orbit.step(), 360.0), 0.0) << points;
    }
}

TEST(AveragedOrbit, OfTwoRevolutionsKeepsWhatRepeatsEveryOtherTurn) {
    const Recording recording = generate({.orders = {First, Half}});
    const AveragedOrbit one = averaged(recording, {.revolutions = 1});
    const AveragedOrbit two = averaged(recording, {.revolutions = 2, .pointsPerTurn = 512});
    ASSERT_EQ(two.x.size(), 1024u);
    EXPECT_EQ(two.averages, 24);  // 49 whole turns; the oldest one is left over
    // 0.5X changes sign from turn to turn. Of 49 turns one stays: 10 / 49 of it at most.
    EXPECT_NEAR(one.x[0], 40.0 * std::cos(30.0 * RadiansPerDegree), 10.0 / 49.0 + 0.01);
    EXPECT_NEAR(std::abs(two.x[0] - two.x[512]), 20.0, 0.01);
}

TEST(AveragedOrbit, TakesTheNewestStretches) {
    // The speed tells where the turns were taken from: the last four of ten turns a second.
    const Recording recording = generate({.duration = 5, .firstSpeed = 600, .lastSpeed = 1200});
    const AveragedOrbit orbit = averaged(recording, {.revolutions = 2, .averages = 2});
    EXPECT_EQ(orbit.averages, 2);
    EXPECT_GT(orbit.speed, 1150.0);
    EXPECT_GT(orbit.span.to, 4.9);
    const AveragedOrbit early =
        averaged(recording, {.span = {0.0, 1.0}, .revolutions = 1, .averages = 1});
    EXPECT_LT(early.span.to, 1.0);
    EXPECT_NEAR(early.speed, 715.0, 10.0);
}

TEST(AveragedOrbit, LeavesStretchesWithGapsOut) {
    Recording recording = generate({.orders = {First}});
    recording.x.edit()[5000] = Gap;  // turn 25.25, between the pulses at 0.495 and 0.515 s
    recording.y.edit()[5300] = Gap;
    const AveragedOrbit orbit = averaged(recording);
    EXPECT_EQ(orbit.averages, 47);
    EXPECT_NEAR(orbit.x[0], 40.0 * std::cos(30.0 * RadiansPerDegree), 0.01);
}

TEST(AveragedOrbit, RefusesWhatCannotBeHadInOneLine) {
    const Recording recording = generate({.duration = 0.1, .orders = {First}});
    Recording broken = recording;
    for (std::size_t i = 0; i < broken.x.size(); i += 100)
        broken.x.edit()[i] = Gap;
    const std::string the = "the averaged orbit ";
    const struct {
        Recording recording;
        AverageOptions options;
        std::string line;
    } cases[] = {
        {withoutKeyphasor(recording),
         {},
         "needs the shaft's angle, and the recording has no "
         "keyphasor"},
        {recording, {.revolutions = 8}, "of 8 turns needs as many, and there are 4"},
        {recording, {.revolutions = 0}, "takes 1 to 1024 revolutions, not 0"},
        {recording, {.averages = -1}, "takes a mean over 0 stretches (all) or more"},
        {recording, {.pointsPerTurn = 4}, "takes 8 to 4096 points a turn, not 4"},
        {recording, {.pointsPerTurn = 360}, "takes a power of two of points a turn, not 360"},
        {broken, {}, "finds a gap in every stretch of 1 turns"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(refusalOf([&] { averaged(one.recording, one.options); }), the + one.line);
}

}  // namespace
}  // namespace Rotavue::Workbench
