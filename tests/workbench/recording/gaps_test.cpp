#include "workbench/recording/gaps.h"

#include <gtest/gtest.h>

#include <limits>

namespace Rotavue::Workbench {
namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();

TEST(Gaps, CountsOnceWhatOneProbeOrBothLack) {
    EXPECT_EQ(countGaps(std::vector<double>{1, Gap, 3, Gap}, std::vector<double>{1, Gap, Gap, 4}),
              3U);
    EXPECT_EQ(countGaps(std::vector<double>{1}, std::vector<double>{2}), 0U);
    EXPECT_EQ(countGaps({}, {}), 0U);
}

TEST(Gaps, HoldsTheLastPairUntilBothProbesHaveAValueAgain) {
    std::vector<double> x = {1, Gap, 3, Gap, 5};
    std::vector<double> y = {10, Gap, Gap, 40, 50};
    holdGaps(x, y);
    EXPECT_EQ(x, (std::vector<double>{1, 1, 1, 1, 5}));
    EXPECT_EQ(y, (std::vector<double>{10, 10, 10, 10, 50}));
}

TEST(Gaps, BeginsWithTheFirstPairWhenTheRecordingBeginsInAGap) {
    std::vector<double> x = {Gap, 2, 3};
    std::vector<double> y = {10, Gap, 30};
    holdGaps(x, y);
    EXPECT_EQ(x, (std::vector<double>{3, 3, 3}));
    EXPECT_EQ(y, (std::vector<double>{30, 30, 30}));
}

TEST(Gaps, LeavesARecordingWithoutGapsAlone) {
    std::vector<double> x = {1, 2};
    std::vector<double> y = {3, 4};
    holdGaps(x, y);
    EXPECT_EQ(x, (std::vector<double>{1, 2}));
    EXPECT_EQ(y, (std::vector<double>{3, 4}));
}

}  // namespace
}  // namespace Rotavue::Workbench
