#include "workbench/export/report_layout.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {

namespace {

TEST(ReportLayout, OneOrbitTakesTheWholeArea) {
    const auto places = orbitPlaces(QRect(10, 20, 700, 900), 1, 16);
    ASSERT_EQ(places.size(), 1U);
    EXPECT_EQ(places[0], QRect(10, 20, 700, 900));
}

TEST(ReportLayout, TwoOrbitsStandWhereTheyAreLargest) {
    // Upright, below each other: (900 - 16) / 2 = 442 high; beside each other they were 342 wide.
    EXPECT_EQ(orbitPlaces(QRect(0, 0, 700, 900), 2, 16)[1], QRect(0, 458, 700, 442));
    EXPECT_EQ(orbitPlaces(QRect(0, 0, 900, 700), 2, 16)[1], QRect(458, 0, 442, 700));
}

TEST(ReportLayout, FiveOrbitsFillRowsFromTheLeftAndAreAlike) {
    // In two columns (700 - 16) / 2 = 342 wide and (900 - 32) / 3 = 289 high.
    const auto places = orbitPlaces(QRect(0, 0, 700, 900), 5, 16);
    ASSERT_EQ(places.size(), 5U);
    EXPECT_EQ(places[1], QRect(358, 0, 342, 289));
    EXPECT_EQ(places[4], QRect(0, 610, 342, 289));
}

TEST(ReportLayout, NoneNeedNone) {
    EXPECT_TRUE(orbitPlaces(QRect(0, 0, 700, 900), 0, 16).empty());
}

}  // namespace
}  // namespace Rotavue::Workbench
