#include "workbench/recording/nearest_name.h"

#include <gtest/gtest.h>

#include <vector>

namespace Rotavue::Workbench {
namespace {

TEST(NearestName, TakesTheFewestChanges) {
    const std::vector<std::string> names = {"Tacho", "Probe X", "Probe Y"};
    EXPECT_EQ(nearestName("Probe_Y", names), "Probe Y");
    EXPECT_EQ(nearestName("tach", names), "Tacho");
    EXPECT_EQ(nearestName("rpobe x", names), "Probe X");
}

TEST(NearestName, CountsCapitalLettersAsSmallOnes) {
    // "AB" is one change from "A", none from "ab".
    EXPECT_EQ(nearestName("AB", std::vector<std::string>{"A", "ab"}), "ab");
}

TEST(NearestName, TakesTheFirstOfEquallyNearOnes) {
    EXPECT_EQ(nearestName("z", std::vector<std::string>{"x", "y"}), "x");
}

TEST(NearestName, IsEmptyWithoutNames) {
    EXPECT_EQ(nearestName("x", {}), "");
}

TEST(ListText, JoinsAtMostTenNames) {
    EXPECT_EQ(listText({}), "");
    EXPECT_EQ(listText(std::vector<std::string>{"t"}), "t");
    EXPECT_EQ(listText(std::vector<std::string>{"t", "x", "y"}), "t, x and y");
    EXPECT_EQ(listText(std::vector<std::string>(11, "a")),
              "a, a, a, a, a, a, a, a, a, a and others");
}

}  // namespace
}  // namespace Rotavue::Workbench
