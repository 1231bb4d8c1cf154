#include "workbench/analysis/cubic_sampling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace Rotavue::Workbench {
namespace {

TEST(CubicSampling, MeetsACubicExactlyFromEndToEnd) {
    const auto value = [](double t) { return 2.0 - t + 0.5 * t * t - 0.25 * t * t * t; };
    std::vector<double> samples;
    for (int i = 0; i < 8; ++i)
        samples.push_back(value(i));
    for (const double place : {0.0, 0.3, 1.0, 2.5, 4.75, 6.2, 7.0})
        EXPECT_NEAR(cubicAt(samples, place), value(place), 1e-12) << place;
}

TEST(CubicSampling, MissesASineOfTwentySamplesByTwoTenthsOfAThousandthAtMost) {
    std::vector<double> samples;
    for (int i = 0; i < 40; ++i)
        samples.push_back(std::sin(0.1 * M_PI * i));
    double worst = 0.0;
    for (double place = 2.0; place < 37.0; place += 0.05)
        worst = std::max(worst, std::abs(cubicAt(samples, place) - std::sin(0.1 * M_PI * place)));
    // 3/128 * (2 pi / 20)^4 = 0.00023.
    EXPECT_LT(worst, 0.00024);
    EXPECT_GT(worst, 0.0001);
}

TEST(CubicSampling, JoinsFewSamplesByStraightLines) {
    EXPECT_EQ(cubicAt(std::vector<double>{4.0}, 0.0), 4.0);
    EXPECT_EQ(cubicAt(std::vector<double>{1.0, 3.0}, 0.25), 1.5);
    EXPECT_EQ(cubicAt(std::vector<double>{1.0, 3.0, 7.0}, 1.5), 5.0);
    EXPECT_EQ(cubicAt(std::vector<double>{1.0, 3.0, 7.0}, 2.0), 7.0);
}

TEST(CubicSampling, IsAGapBesideAGap) {
    std::vector<double> samples(10, 1.0);
    samples[5] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isnan(cubicAt(samples, 4.5)));
    EXPECT_TRUE(std::isnan(cubicAt(samples, 3.5)));
    EXPECT_EQ(cubicAt(samples, 2.5), 1.0);
}

}  // namespace
}  // namespace Rotavue::Workbench
