#include "workbench/recording/ranked_value.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace Rotavue::Workbench {
namespace {

TEST(ValueOfRank, IsWhatWouldStandThereSorted) {
    const std::vector<double> values = {3.0, -2.5, 0.0, 7.25, -40.0, 0.125};
    const std::vector<double> sorted = {-40.0, -2.5, 0.0, 0.125, 3.0, 7.25};
    for (std::size_t rank = 0; rank < sorted.size(); ++rank)
        EXPECT_EQ(valueOfRank(values, rank), sorted[rank]) << rank;
}

TEST(ValueOfRank, CountsEqualValuesOneByOne) {
    const std::vector<double> values = {5.0, 1.0, 5.0, 1.0, 1.0};
    EXPECT_EQ(valueOfRank(values, 2), 1.0);
    EXPECT_EQ(valueOfRank(values, 3), 5.0);
    EXPECT_EQ(valueOfRank(values, 4), 5.0);
}

TEST(ValueOfRank, TellsApartWhatDiffersInTheLastBitAlone) {
    const double above = 1.0 + std::numeric_limits<double>::epsilon();
    const std::vector<double> values = {above, 1.0, -above, -1.0};
    EXPECT_EQ(valueOfRank(values, 0), -above);
    EXPECT_EQ(valueOfRank(values, 1), -1.0);
    EXPECT_EQ(valueOfRank(values, 2), 1.0);
    EXPECT_EQ(valueOfRank(values, 3), above);
}

TEST(ValueOfRank, KnowsTheOuterNumbers) {
    using Limits = std::numeric_limits<double>;
    const std::vector<double> values = {Limits::infinity(), Limits::denorm_min(), Limits::max(),
                                        -Limits::infinity(), -Limits::denorm_min()};
    EXPECT_EQ(valueOfRank(values, 0), -Limits::infinity());
    EXPECT_EQ(valueOfRank(values, 1), -Limits::denorm_min());
    EXPECT_EQ(valueOfRank(values, 2), Limits::denorm_min());
    EXPECT_EQ(valueOfRank(values, 3), Limits::max());
    EXPECT_EQ(valueOfRank(values, 4), Limits::infinity());
}

// 7919 is prime to 10,007 values: the products come to each number from 0 to 10,006 once.
TEST(ValueOfRank, HoldsForMoreValuesThanAreTriedFirst) {
    constexpr std::size_t Count = 10'007;
    std::vector<double> distinct(Count);
    for (std::size_t i = 0; i < Count; ++i)
        distinct[i] = static_cast<double>(i * 7919 % Count) - 5000.0;
    std::vector<double> levels(Count);
    for (std::size_t i = 0; i < Count; ++i)
        levels[i] = distinct[i] < 0.0 ? -1.0 : 1.0;
    for (const std::size_t rank : {0U, 1U, 4095U, 4999U, 5000U, 9000U, 10'006U}) {
        EXPECT_EQ(valueOfRank(distinct, rank), static_cast<double>(rank) - 5000.0);
        EXPECT_EQ(valueOfRank(levels, rank), rank < 5000 ? -1.0 : 1.0) << rank;
    }
}

// Every third value is 1, and every third one is looked at first: the guess is 1 for each rank.
TEST(ValueOfRank, IsNotMisledByWhatIsTriedFirst) {
    std::vector<double> values(8192, 0.0);
    for (std::size_t i = 0; i < values.size(); i += 3)
        values[i] = 1.0;
    EXPECT_EQ(valueOfRank(values, 100), 0.0);
    EXPECT_EQ(valueOfRank(values, 8000), 1.0);
}

}  // namespace
}  // namespace Rotavue::Workbench
