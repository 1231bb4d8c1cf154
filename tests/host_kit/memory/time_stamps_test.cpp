#include "host_kit/memory/time_stamps.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace Rotavue::HostKit {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

struct Search {
    const char* what;
    TimeStamps stamps;
    double seconds;
    std::int32_t expected;
};

TEST(TimeStampsTest, LastThatIsNotAboveIsFoundInAnyOrder) {
    const std::vector<Search> searches{
        {"no stamps", {}, 1.0, 0},
        {"the only one is above", {2.0}, 1.0, 0},
        {"none is not above", {3.0, 2.0}, 1.0, 0},
        {"the last of equal ones", {1.0, 2.0, 2.0, 3.0}, 2.0, 2},
        {"falling: one later is lower", {3.0, 2.0, 1.0}, 2.5, 2},
        {"in disorder: behind a higher one", {0.0, 9.0, 1.0, 8.0}, 1.5, 2},
        {"in disorder: the highest too", {0.0, 9.0, 1.0, 8.0}, 9.0, 3},
        {"a stamp that is no number is not above", {5.0, NoNumber, 6.0}, 1.0, 1},
        {"none is above no number", {1.0, Infinity}, NoNumber, 1},
        {"infinity is not above itself", {1.0, Infinity}, Infinity, 1},
        {"infinity is above the largest", {1.0, Infinity}, 1e308, 0},
        {"before all", {-Infinity, 0.0}, -Infinity, 0}};
    for (const Search& search : searches)
        EXPECT_EQ(search.stamps.lastNotAbove(search.seconds), search.expected) << search.what;
}

TEST(TimeStampsTest, GivesZeroOutsideTheList) {
    const TimeStamps stamps{1.5, 2.5};
    EXPECT_EQ(stamps.at(1), 2.5);
    for (const std::int32_t index : {2, -1, std::numeric_limits<std::int32_t>::min()})
        EXPECT_EQ(stamps.at(index), 0.0);
}

/// The definition, word for word.
std::int32_t walkedFromTheEnd(const std::vector<double>& stamps, double seconds) {
    for (std::size_t i = stamps.size(); i > 0; --i)
        if (!(stamps[i - 1] > seconds)) return static_cast<std::int32_t>(i - 1);
    return 0;
}

TEST(TimeStampsTest, BisectionFindsWhatAWalkFinds) {
    std::mt19937 random(7);
    const auto oneOf = [&](const std::vector<double>& numbers) {
        return numbers[random() % numbers.size()];
    };
    const std::vector<double> numbers{-Infinity, -1.0, -0.0,     0.0,     0.5,
                                      1.0,       2.0,  Infinity, NoNumber};
    for (int round = 0; round < 2000; ++round) {
        std::vector<double> list(random() % 12);
        for (double& stamp : list)
            stamp = oneOf(numbers);
        const TimeStamps stamps(list);
        for (const double seconds : numbers)
            ASSERT_EQ(stamps.lastNotAbove(seconds), walkedFromTheEnd(list, seconds));
    }
}

/// To walk for each one would take a quarter of an hour.
TEST(TimeStampsTest, AMillionSearchesAmongAMillionStampsEnd) {
    constexpr std::int32_t Count = 1'000'000;
    std::vector<double> list(Count);
    for (std::int32_t i = 0; i < Count; ++i)
        list[static_cast<std::size_t>(i)] = i;
    const TimeStamps stamps(std::move(list));
    std::int64_t missed = 0;
    for (std::int32_t i = 0; i < Count; ++i)
        if (stamps.lastNotAbove(i % 1000 + 0.5) != i % 1000) ++missed;
    EXPECT_EQ(missed, 0);
}

}  // namespace
}  // namespace Rotavue::HostKit
