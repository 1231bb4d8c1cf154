#include "plugin/orbit_graph/label_room.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <random>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// A room with its list.
struct Room {
    std::vector<Rectangle> placed;
    LabelRoom room{placed};

    bool take(const Rectangle& box) {
        const bool has = room.hasRoom(box);
        if (has) room.place(box);
        return has;
    }
};

TEST(LabelRoom, IsTakenByWhateverOverlapsOrTouches) {
    Room room;
    EXPECT_TRUE(room.take({0, 0, 10, 10}));
    EXPECT_FALSE(room.take({10, 10, 20, 20}));
    EXPECT_TRUE(room.take({10.5, 0, 20, 10}));
    EXPECT_FALSE(room.take({-1000, 5, 1000, 6}));
    EXPECT_EQ(room.placed, (std::vector<Rectangle>{{0, 0, 10, 10}, {10.5, 0, 20, 10}}));
}

TEST(LabelRoom, EndsWithTheMostLabels) {
    Room room;
    for (std::size_t i = 0; i < MostPlacedLabels; ++i) {
        const double left = 20.0 * static_cast<double>(i);
        ASSERT_TRUE(room.take({left, 0, left + 10, 10}));
    }
    EXPECT_FALSE(room.take({-100, 0, -90, 10}));
}

// Labels without a size have room beside each other in one cell, where each further one meets all.
TEST(LabelRoom, EndsWithTheMostComparisons) {
    Room room;
    for (std::size_t i = 0; i < 4000; ++i) {
        const double left = 0.01 * static_cast<double>(i);
        ASSERT_TRUE(room.take({left, 0, left, 0}));
    }
    const Rectangle elsewhere{1000, 0, 1010, 10};
    EXPECT_TRUE(room.room.hasRoom(elsewhere));
    // 4,000 * 3,999 / 2 comparisons are made; 24,000 times 4,000 more leave none of 100,000,000.
    for (int i = 0; i < 24'000; ++i)
        ASSERT_FALSE(room.take({39.99, 0, 39.99, 0}));
    EXPECT_FALSE(room.room.hasRoom(elsewhere));
}

/// The edges of labels of all sizes and orders, also hostile ones.
Rectangle anyBox(std::mt19937_64& random) {
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    constexpr std::array<double, 7> Odd{
        0, 64, 1e7, -1e7, Infinity, -Infinity, std::numeric_limits<double>::quiet_NaN()};
    const auto between = [&](double lower, double upper) {
        return std::uniform_real_distribution<double>(lower, upper)(random);
    };
    const double reach = between(0, 1) < 0.1 ? 20000 : 40;
    const double left = between(-3000, 3000);
    const double top = between(-3000, 3000);
    std::array<double, 4> edges{left, top, left + between(-5, reach), top + between(-5, reach)};
    if (between(0, 1) < 0.1) edges[random() % 4] = Odd[random() % Odd.size()];
    return {edges[0], edges[1], edges[2], edges[3]};
}

TEST(LabelRoom, GivesTheSameAnswersAsAComparisonWithEveryLabel) {
    std::mt19937_64 random{20240229};
    std::size_t refused = 0;
    for (int round = 0; round < 20; ++round) {
        Room room;
        for (int i = 0; i < 1000; ++i) {
            const Rectangle box = anyBox(random);
            const bool expected = std::ranges::none_of(
                room.placed, [&](const Rectangle& other) { return overlaps(box, other); });
            ASSERT_EQ(room.take(box), expected) << box.left << " " << box.top;
            if (!expected) ++refused;
        }
    }
    EXPECT_GT(refused, 1000U);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
