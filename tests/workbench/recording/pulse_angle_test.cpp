#include "workbench/recording/pulse_angle.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Rotavue::Workbench {
namespace {

using Values = std::vector<double>;

Values angleAt(std::size_t count, const Values& pulses, int pulsesPerTurn) {
    Values angle(count, -1.0);
    PulseAngle(pulses, pulsesPerTurn, count).copyTo(0, angle);
    return angle;
}

TEST(PulseAngle, RunsThroughATurnFromPulseToPulse) {
    // Turns of 4 and of 2 samples.
    EXPECT_EQ(angleAt(7, Values{0, 4, 6}, 1), (Values{0, 90, 180, 270, 0, 180, 0}));
}

TEST(PulseAngle, GoesOnAtBothEndsWithTheNeighbouringPeriod) {
    // Before the pulse at 2 a turn of 4 samples, behind the one at 8 a turn of 2.
    EXPECT_EQ(angleAt(12, Values{2, 6, 8}, 1),
              (Values{180, 270, 0, 90, 180, 270, 0, 180, 0, 180, 0, 180}));
}

TEST(PulseAngle, DividesATurnByItsPulses) {
    // Three pulses a turn: 120 degrees each, whatever their distance.
    EXPECT_EQ(angleAt(8, Values{0, 2, 3, 4, 6}, 3), (Values{0, 60, 120, 240, 0, 60, 120, 180}));
}

TEST(PulseAngle, KnowsPulsesBetweenSamples) {
    // Pulses at 0.5 and 2.5: sample 1 is a quarter of the turn behind the first one.
    EXPECT_EQ(angleAt(4, Values{0.5, 2.5}, 1), (Values{270, 90, 270, 90}));
}

TEST(PulseAngle, FallsBackOnceATurnOverManyTurns) {
    // A keyphasor of 7.3 samples a turn: 1000 samples hold 136 whole turns and a part.
    Values pulses;
    for (double place = 3.0; place < 1000.0; place += 7.3)
        pulses.push_back(place);
    const Values angle = angleAt(1000, pulses, 1);
    int falls = 0;
    for (std::size_t i = 1; i < angle.size(); ++i) {
        ASSERT_GE(angle[i], 0.0);
        ASSERT_LT(angle[i], 360.0);
        const double difference = angle[i] - angle[i - 1];
        if (difference < -180.0) ++falls;
        ASSERT_TRUE(difference > 0.0 || difference < -180.0) << i;
    }
    EXPECT_EQ(falls, 137);  // one at each pulse: 3 + 7.3 k for k from 0 to 136
}

// Pulses 7.3 samples apart, then three within one sample, then 200 apart: short and long periods.
TEST(PulseAngle, IsTheSameWhereverItIsAskedFor) {
    Values pulses;
    for (double place = 3.0; place < 500.0; place += 7.3)
        pulses.push_back(place);
    for (const double further : {500.2, 500.4, 500.6, 700.0, 900.0})
        pulses.push_back(further);
    const PulseAngle angle(pulses, 2, 1000);
    const Values all = angleAt(1000, pulses, 2);
    ASSERT_EQ(angle.size(), 1000U);
    for (std::size_t i = 0; i < all.size(); ++i)
        ASSERT_EQ(angle[i], all[i]) << i;
    Values part(100, -1.0);
    angle.copyTo(470, part);
    for (std::size_t i = 0; i < part.size(); ++i)
        ASSERT_EQ(part[i], all[470 + i]) << i;
    EXPECT_EQ(all[800], 90.0);  // half way from pulse 72 at 700 to pulse 73: even, so 0 to 180
}

}  // namespace
}  // namespace Rotavue::Workbench
