#include "workbench/recording/time_column.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace Rotavue::Workbench {
namespace {

TEST(TimeColumn, GivesTheRateOfItsMeanStep) {
    // 4 steps in 2 s.
    const auto steps = readTimeSteps(std::vector<double>{10.0, 10.4, 11.0, 11.5, 12.0}, 1.0);
    ASSERT_TRUE(steps);
    EXPECT_EQ(steps->start, 10.0);
    EXPECT_EQ(steps->rate, 2.0);
    EXPECT_NEAR(steps->largestStray, 0.1, 1e-12);
}

TEST(TimeColumn, OutlivesDecimalsThatWereCutOff) {
    // 51,200 samples a second are 19.53125 us a step; with six decimals single steps read 19 or 20.
    // The last of 51,201 values is 1 s exactly, so the mean step is right.
    std::vector<double> time;
    for (int i = 0; i <= 51'200; ++i)
        time.push_back(std::floor(i * 19.53125) * 1e-6);
    const auto steps = readTimeSteps(time, 1.0);
    ASSERT_TRUE(steps);
    EXPECT_EQ(steps->rate, 51'200.0);
    EXPECT_LT(steps->largestStray, 1e-6);
}

TEST(TimeColumn, TakesAWholeRateThatTheCutDecimalsAllow) {
    // 6000 samples a second, 2 s: the last time is 1.999833 instead of 1.9998333.., which alone
    // would make 6000.001.
    std::vector<double> time;
    for (int i = 0; i < 12'000; ++i)
        time.push_back(std::floor(i * 1e6 / 6000.0) * 1e-6);
    EXPECT_EQ(readTimeSteps(time, 1.0)->rate, 6000.0);
    // Even steps leave nothing to be rounded, and a jump leaves too much.
    EXPECT_NEAR(readTimeSteps(std::vector<double>{0.0, 0.3, 0.6, 0.9}, 1.0)->rate, 10.0 / 3, 1e-12);
    EXPECT_EQ(readTimeSteps(std::vector<double>{0.0, 0.1, 1.6}, 1.0)->rate, 1.25);
}

TEST(TimeColumn, CountsInItsUnit) {
    const auto steps = readTimeSteps(std::vector<double>{5.0, 5.5}, secondsPerUnit("ms"));
    ASSERT_TRUE(steps);
    EXPECT_EQ(steps->start, 0.005);
    EXPECT_EQ(steps->rate, 2000.0);
    EXPECT_EQ(secondsPerUnit("\u00B5s"), 1e-6);
    EXPECT_EQ(secondsPerUnit("ns"), 1e-9);
    EXPECT_EQ(secondsPerUnit(""), 1.0);
    EXPECT_EQ(secondsPerUnit("s"), 1.0);
}

TEST(TimeColumn, LosesDustButKeepsAFraction) {
    EXPECT_EQ(readTimeSteps(std::vector<double>{0.0, 0.1 + 1e-12}, 1.0)->rate, 10.0);
    EXPECT_EQ(readTimeSteps(std::vector<double>{0.0, 0.4}, 1.0)->rate, 2.5);
}

TEST(TimeColumn, SaysNothingWhereTheTimeStandsStill) {
    EXPECT_FALSE(readTimeSteps(std::vector<double>{}, 1.0));
    EXPECT_FALSE(readTimeSteps(std::vector<double>{1.0}, 1.0));
    EXPECT_FALSE(readTimeSteps(std::vector<double>{1.0, 1.0, 1.0}, 1.0));
}

}  // namespace
}  // namespace Rotavue::Workbench
