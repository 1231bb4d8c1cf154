#include "workbench/analysis/direct_orbit.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/analysis/harmonics.h"

namespace Rotavue::Workbench {
namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();
constexpr OrderVectors First{1.0, {40, 30}, {35, 121}};
constexpr OrderVectors Second{2.0, {8, 60}, {6, 333}};
constexpr OrderVectors Half{0.5, {10, 0}, {10, 90}};

AveragedOrbit direct(const Recording& recording, const TimeSpan& span = {}) {
    return directOrbit(recording, ShaftTrack(recording), span);
}

// 3000 rpm from 0.25 turns on: turns begin at 0.015, 0.035 .. s. From 0.5 to 0.6 s these are the
// four from 0.515 to 0.595 s, which begin with turn 26.
TEST(DirectOrbit, ShowsTheTurnsOfTheSpanOneBehindTheOther) {
    const Recording recording = generate({.orders = {First, Half}, .xMean = -100, .yMean = 5});
    const AveragedOrbit orbit = direct(recording, {0.5, 0.6});
    EXPECT_EQ(orbit.revolutions, 4);
    EXPECT_EQ(orbit.averages, 1);
    EXPECT_NEAR(orbit.span.from, 0.515, 1e-6);
    EXPECT_NEAR(orbit.span.to, 0.595, 1e-6);
    ASSERT_EQ(orbit.x.size(), 1024u);
    for (std::size_t k = 0; k < 1024; ++k) {
        const double turns = 26.0 + static_cast<double>(k) / 256.0;
        EXPECT_NEAR(orbit.x[k], -100 + First.x.valueAt(1, turns) + Half.x.valueAt(0.5, turns),
                    0.01);
        EXPECT_NEAR(orbit.y[k], 5 + First.y.valueAt(1, turns) + Half.y.valueAt(0.5, turns), 0.01);
    }
}

// A mean of the turns would halve what only one of two turns has.
TEST(DirectOrbit, AveragesNothing) {
    Recording recording = generate({});
    const std::size_t inTheSecondTurn = 450;  // 0.045 s, half a turn behind the pulse at 0.035 s
    recording.x.edit()[inTheSecondTurn] = 12.0;
    const AveragedOrbit orbit = direct(recording, {0.014, 0.056});
    ASSERT_EQ(orbit.revolutions, 2);
    EXPECT_NEAR(orbit.x[128], 0.0, 1e-9);
    EXPECT_NEAR(orbit.x[256 + 128], 12.0, 0.01);
}

// At 10 kHz and `speed` rpm a turn has 600,000 / speed samples; 16 turns and more are there.
TEST(DirectOrbit, HasAsManyPointsATurnAsThereAreSamples) {
    struct Case {
        double speed;
        int points;
    };
    const Case cases[] = {
        {6000, 256},   // 100 samples
        {2000, 512},   // 300
        {1200, 512},   // 500
        {1000, 1024},  // 600
        {300, 1024},   // 2,000
    };
    for (const Case& c : cases) {
        const Recording recording =
            generate({.duration = 4, .firstSpeed = c.speed, .lastSpeed = c.speed});
        EXPECT_EQ(direct(recording, {0.0, 0.5}).pointsPerTurn, c.points) << c.speed;
    }
}

// 12,000 rpm over 10 s are 2,000 turns; 1,024 turns of 64 points are the most.
TEST(DirectOrbit, OfVeryManyTurnsShowsTheNewestCoarsely) {
    const Recording recording =
        generate({.duration = 10, .firstSpeed = 12'000, .lastSpeed = 12'000});
    const AveragedOrbit orbit = direct(recording);
    EXPECT_EQ(orbit.revolutions, 1024);
    EXPECT_EQ(orbit.pointsPerTurn, 64);
    EXPECT_EQ(orbit.x.size(), 65'536u);
    EXPECT_GT(orbit.span.to, 9.99);  // a turn is 0.005 s
}

TEST(DirectOrbit, SaysWhatItLacks) {
    const Recording recording = generate({});
    Recording broken = recording;
    broken.y.edit()[450] = Gap;
    EXPECT_EQ(refusalOf([&] { direct(withoutKeyphasor(recording)); }),
              "the direct orbit by angle needs the shaft's angle, and the recording has no "
              "keyphasor");
    EXPECT_EQ(refusalOf([&] {
                  direct(broken, {0.014, 0.056});
              }),
              "the direct orbit by angle finds a gap in every stretch of 2 turns");
    EXPECT_EQ(refusalOf([&] { direct(broken, {0.054, 0.096}); }), "");
}

// What is left is the mean and the other orders as they were: nothing of them is taken for 1X over
// whole turns of whole orders.
TEST(WithoutOrder, TakesAwayThatOrderAlone) {
    const Recording recording = generate({.orders = {First, Second}, .xMean = -100, .yMean = 5});
    const ShaftTrack track(recording);
    const double orders[] = {1.0};
    const TimeSpan span{0.5, 0.7};
    const Harmonics found = findHarmonics(recording, track, orders, span);
    const AveragedOrbit left =
        withoutOrder(directOrbit(recording, track, span), found.orders.front());
    ASSERT_EQ(left.revolutions, 9);
    for (std::size_t k = 0; k < left.x.size(); ++k) {
        const double turns = static_cast<double>(k) / 256.0;
        EXPECT_NEAR(left.x[k], -100 + Second.x.valueAt(2, turns), 0.02) << k;
        EXPECT_NEAR(left.y[k], 5 + Second.y.valueAt(2, turns), 0.02) << k;
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
