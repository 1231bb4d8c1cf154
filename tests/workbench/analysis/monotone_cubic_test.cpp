#include "workbench/analysis/monotone_cubic.h"

#include <gtest/gtest.h>

#include <random>

namespace Rotavue::Workbench {
namespace {

TEST(MonotoneCubic, PassesThroughItsPoints) {
    const MonotoneCubic curve({0, 1, 3, 4}, {0, 5, 6, 20});
    EXPECT_EQ(curve.at(0), 0);
    EXPECT_EQ(curve.at(1), 5);
    EXPECT_EQ(curve.at(3), 6);
    EXPECT_EQ(curve.at(4), 20);
}

TEST(MonotoneCubic, MeetsConstantAccelerationExactly) {
    // y = x + x^2 / 4 at uneven places.
    const auto y = [](double x) { return x + 0.25 * x * x; };
    const MonotoneCubic curve({0, 1, 2.5, 3, 5}, {y(0), y(1), y(2.5), y(3), y(5)});
    for (const double x : {0.1, 0.5, 1.7, 2.8, 3.3, 4.9})
        EXPECT_NEAR(curve.at(x), y(x), 1e-12) << x;
}

TEST(MonotoneCubic, IsAStraightLineThroughTwoPointsAndGoesOnStraight) {
    const MonotoneCubic curve({1, 3}, {10, 14});
    EXPECT_DOUBLE_EQ(curve.at(2.0), 12.0);
    EXPECT_DOUBLE_EQ(curve.at(0.0), 8.0);
    EXPECT_DOUBLE_EQ(curve.at(5.0), 18.0);
}

TEST(MonotoneCubic, RisesEverywhereThroughAnyRisingPoints) {
    std::mt19937_64 random(7);
    std::exponential_distribution<double> step(1.0);
    std::vector<double> x = {0.0};
    std::vector<double> y = {0.0};
    for (int i = 0; i < 200; ++i) {
        x.push_back(x.back() + 0.01 + step(random));
        y.push_back(y.back() + 0.01 + 10.0 * step(random));
    }
    const MonotoneCubic curve(x, y);
    double before = curve.at(-1.0);
    for (double place = -0.99; place < x.back() + 1.0; place += 0.01) {
        const double value = curve.at(place);
        EXPECT_GT(value, before) << place;
        before = value;
    }
}

TEST(MonotoneCubic, SweepsOverWhatItGivesOneByOne) {
    const MonotoneCubic curve({0, 1, 2.5, 3}, {0, 2, 3, 7});
    const std::vector<double> values = curve.sweep(-0.5, 0.3, 15);
    ASSERT_EQ(values.size(), 15u);
    for (std::size_t k = 0; k < values.size(); ++k)
        EXPECT_EQ(values[k], curve.at(-0.5 + static_cast<double>(k) * 0.3));
}

}  // namespace
}  // namespace Rotavue::Workbench
