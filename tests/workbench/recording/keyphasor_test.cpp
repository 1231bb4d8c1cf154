#include "workbench/recording/keyphasor.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Rotavue::Workbench {
namespace {

using Values = std::vector<double>;

TEST(PulseRule, StandsHalfwayBetweenTheQuantiles) {
    // 101 values 0 to 100: the 5 % quantile is 5, the 95 % one 95; half 50, a quarter of 90 22.5.
    Values volts;
    for (int i = 0; i <= 100; ++i)
        volts.push_back(100 - i);
    const PulseRule rule = pulseRuleFor(volts, {});
    EXPECT_EQ(rule.edge, PulseEdge::Rising);
    EXPECT_EQ(rule.level, 50.0);
    EXPECT_EQ(rule.hysteresis, 22.5);
}

TEST(PulseRule, IsNotDrawnAwayByASpike) {
    // Quantiles -2 and 0, whole range -2 to 4: 2 is more than a quarter of 6.
    Values volts(100, 0.0);
    for (std::size_t i = 0; i < 50; ++i)
        volts[i] = -2.0;
    volts[99] = 4.0;
    EXPECT_EQ(pulseRuleFor(volts, {}).level, -1.0);
    EXPECT_EQ(pulseRuleFor(volts, {}).hysteresis, 0.5);
}

TEST(PulseRule, TakesTheWholeRangeWherePulsesAreNarrow) {
    // 2 % of the samples: both quantiles lie at the base.
    Values volts(100, -10.0);
    volts[30] = volts[80] = -2.0;
    EXPECT_EQ(pulseRuleFor(volts, {}).level, -6.0);
    EXPECT_EQ(pulseRuleFor(volts, {}).hysteresis, 2.0);
}

TEST(PulseRule, TakesWhatTheOptionsSet) {
    KeyphasorOptions options;
    options.edge = PulseEdge::Falling;
    options.level = -3.0;
    options.hysteresis = 0.5;
    const PulseRule rule = pulseRuleFor(Values{0.0, 1.0}, options);
    EXPECT_EQ(rule.edge, PulseEdge::Falling);
    EXPECT_EQ(rule.level, -3.0);
    EXPECT_EQ(rule.hysteresis, 0.5);
}

TEST(Pulses, LieBetweenTheSamplesOfTheirCrossing) {
    // From 0 to 4 the line passes 1 after a quarter, and 2 after a half.
    const Values volts = {0, 4, 0, 4, 4, 0};
    EXPECT_EQ(findPulses(volts, {PulseEdge::Rising, 1.0, 0.5}), (Values{0.25, 2.25}));
    EXPECT_EQ(findPulses(volts, {PulseEdge::Rising, 2.0, 0.5}), (Values{0.5, 2.5}));
    // Falling from 4 to 0 it passes 1 after three quarters.
    EXPECT_EQ(findPulses(volts, {PulseEdge::Falling, 1.0, 0.5}), (Values{1.75, 4.75}));
    // A sample on the level is the crossing itself.
    EXPECT_EQ(findPulses(Values{0, 1, 2}, {PulseEdge::Rising, 1.0, 0.5}), Values{1.0});
}

TEST(Pulses, NeedTheOtherSideOfTheHysteresisFirst) {
    // Noise about the level 1: 0.8 isn't below 1 - 0.5, so the second rise is no pulse.
    EXPECT_EQ(findPulses(Values{0, 1.5, 0.8, 1.5, 0, 2}, {PulseEdge::Rising, 1.0, 0.5}),
              (Values{1.0 / 1.5, 4.5}));
    // A signal that begins high has to go low first.
    EXPECT_EQ(findPulses(Values{2, 2, 0, 2}, {PulseEdge::Rising, 1.0, 0.5}), Values{2.5});
    // Beginning between: not armed.
    EXPECT_EQ(findPulses(Values{0.8, 2, 2}, {PulseEdge::Rising, 1.0, 0.5}), Values{});
}

TEST(Pulses, AreNoneInAFlatSignal) {
    const Values flat(10, 3.0);
    EXPECT_EQ(findPulses(flat, pulseRuleFor(flat, {})), Values{});
    EXPECT_EQ(findPulses({}, pulseRuleFor({}, {})), Values{});
}

TEST(Speed, CountsTurnsBetweenTheOuterPulses) {
    // 2 turns of one pulse in 6 samples at 100 per second: 2 / 0.06 s = 2000 rpm.
    EXPECT_DOUBLE_EQ(speedFromPulses(Values{0, 4, 6}, 100.0, 1), 2000.0);
    EXPECT_DOUBLE_EQ(speedFromPulses(Values{0, 4, 6}, 100.0, 2), 1000.0);
}

TEST(AngleFromSpeed, IsTheIntegral) {
    // 600 rpm are 3600 degrees per second, 90 from sample to sample at 40 per second.
    EXPECT_EQ(angleFromSpeed(Values{600, 600, 600, 600, 600}, 40.0), (Values{0, 90, 180, 270, 0}));
    // From 0 to 600 rpm the mean is 300: 45 degrees.
    EXPECT_EQ(angleFromSpeed(Values{0, 600}, 40.0), (Values{0, 45}));
    EXPECT_EQ(angleFromSpeed({}, 40.0), Values{});
}

TEST(Turns, CountTheShorterWayRound) {
    EXPECT_DOUBLE_EQ(turnsOf(Values{0, 120, 240, 0, 90}), 1.25);
    EXPECT_DOUBLE_EQ(turnsOf(Values{0, 270, 180, 90, 0}), -1.0);
    EXPECT_EQ(turnsOf(Values{5}), 0.0);
}

TEST(KeyphasorKind, IsKnownByItsValues) {
    Values ramp;
    Values pulses;
    for (int i = 0; i < 100; ++i) {
        ramp.push_back(i % 36 * 10.0);
        pulses.push_back(i % 10 == 0 ? 350.0 : 0.0);
    }
    EXPECT_EQ(kindFromValues(ramp), KeyphasorKind::Ramp);
    EXPECT_EQ(kindFromValues(pulses), KeyphasorKind::Volts);  // the span alone would say ramp
    EXPECT_EQ(kindFromValues(Values{0, 2.5, 5}), KeyphasorKind::Volts);
    EXPECT_EQ(kindFromValues(Values{7, 7}), KeyphasorKind::Volts);
    EXPECT_EQ(kindFromValues({}), KeyphasorKind::Volts);
}

}  // namespace
}  // namespace Rotavue::Workbench
