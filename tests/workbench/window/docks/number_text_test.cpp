#include "workbench/window/docks/number_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace Rotavue::Workbench {
namespace {

TEST(NumberText, DisplacementsHaveThePlacesThatTheirUnitIsWorth) {
    EXPECT_EQ(displacementText(81.694, "um"), "81.69");
    EXPECT_EQ(displacementText(80.0, "um"), "80.00");
    EXPECT_EQ(displacementText(80.0, "\u00B5m"), "80.00");
    EXPECT_EQ(displacementText(3.15, "mil"), "3.150");
    EXPECT_EQ(displacementText(0.08, "mm"), "0.0800");
    EXPECT_EQ(displacementText(1.25, "V"), "1.250");
    EXPECT_EQ(displacementText(1.25, ""), "1.250");
}

TEST(NumberText, WhatIsFinerThanItsPlacesIsZeroWithoutASign) {
    EXPECT_EQ(displacementText(0.0049, "um"), "0.00");
    EXPECT_EQ(displacementText(-0.0027, "um"), "0.00");
    EXPECT_EQ(displacementText(-0.02786, "um"), "-0.03");
}

TEST(NumberText, DigitsTellAHundredthOfASpan) {
    EXPECT_EQ(placesForSpan(160.0), 0);    // 1.6: whole numbers
    EXPECT_EQ(placesForSpan(80.0), 1);     // 0.8
    EXPECT_EQ(placesForSpan(0.8), 3);      // 0.008
    EXPECT_EQ(placesForSpan(1e-5), 7);     // 1e-7
    EXPECT_EQ(placesForSpan(1e-300), 12);  // as many as a number has
    EXPECT_EQ(placesForSpan(0.0), 0);
    EXPECT_EQ(placesForSpan(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(NumberText, LagsGoFromNothingToJustBelowATurn) {
    EXPECT_EQ(lagText(8.96e-14), "0.0");
    EXPECT_EQ(lagText(359.96), "0.0");
    EXPECT_EQ(lagText(359.94), "359.9");
    EXPECT_EQ(lagText(360.0), "0.0");
    EXPECT_EQ(lagText(-0.01), "0.0");
    EXPECT_EQ(lagText(40.04), "40.0");
}

TEST(NumberText, TiltsGoFromNothingToJustBelowHalfATurn) {
    EXPECT_EQ(tiltText(179.96), "0.0");
    EXPECT_EQ(tiltText(179.94), "179.9");
    EXPECT_EQ(tiltText(90.04), "90.0");
}

TEST(NumberText, SpeedsAreWhole) {
    EXPECT_EQ(speedText(2999.6), "3000");
    EXPECT_EQ(speedText(0.2), "0");
}

TEST(NumberText, WhatIsNoUsualNumberIsShortAllTheSame) {
    EXPECT_EQ(displacementText(1e300, "um"), "1e+300");
    EXPECT_EQ(displacementText(std::numeric_limits<double>::infinity(), "um"), "inf");
    EXPECT_EQ(speedText(std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(lagText(std::numeric_limits<double>::quiet_NaN()), "nan");
}

}  // namespace
}  // namespace Rotavue::Workbench
