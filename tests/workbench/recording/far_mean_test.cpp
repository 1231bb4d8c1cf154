#include "workbench/recording/far_mean.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace Rotavue::Workbench {
namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();

TEST(FarMeanTest, TellsHowManyTimesThePeakToPeakTheMeanIs) {
    const auto volts = farMean(std::vector{-9.75, -9.25, Gap, -9.5});
    ASSERT_TRUE(volts);
    EXPECT_EQ(volts->mean, -9.5);
    EXPECT_EQ(volts->times, 19.0);  // 9.5 / 0.5
}

TEST(FarMeanTest, FiveTimesIsFar) {
    EXPECT_TRUE(farMean(std::vector{4.5, 5.5}));    // 5 / 1
    EXPECT_FALSE(farMean(std::vector{4.25, 5.5}));  // 4.875 / 1.25
    EXPECT_TRUE(farMean(std::vector{-4.5, -5.5}));
}

TEST(FarMeanTest, WhatStandsStillOrIsNotThereIsNowhere) {
    EXPECT_FALSE(farMean(std::vector{-9.8, -9.8}));
    EXPECT_FALSE(farMean(std::vector{Gap, Gap}));
    EXPECT_FALSE(farMean({}));
}

TEST(FarMeanTest, ThreeDigitsAreKept) {
    EXPECT_EQ(inThreeDigits(-9.8049), -9.8);
    EXPECT_EQ(inThreeDigits(0.0123456), 0.0123);
    EXPECT_EQ(inThreeDigits(123456.0), 123000.0);
    EXPECT_EQ(inThreeDigits(0.0), 0.0);
}

}  // namespace
}  // namespace Rotavue::Workbench
