#include "workbench/window/docks/control_settings.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

ControlSettings manual(const wchar_t* minX, const wchar_t* maxX, const wchar_t* minY,
                       const wchar_t* maxY) {
    return {{L"useManualMagnitudeLimits", L"True"},
            {L"minXValue", minX},
            {L"maxXValue", maxX},
            {L"minYValue", minY},
            {L"maxYValue", maxY}};
}

TEST(ScaleWarning, IsNoneWhereTheOrbitKeepsItsShape) {
    EXPECT_FALSE(scaleWarning({}));
    EXPECT_FALSE(scaleWarning({{L"useManualMagnitudeLimits", L"True"}}));  // -1 to 1 both
    EXPECT_FALSE(scaleWarning(manual(L"-50", L"50", L"0", L"100")));       // moved, not stretched
    // A circle is always scaled absolutely, and limits that are not used do not matter.
    EXPECT_FALSE(scaleWarning({{L"autoScaleType", L"1"}, {L"graphType", L"1"}}));
    EXPECT_FALSE(scaleWarning({{L"maxXValue", L"7"}}));
}

TEST(ScaleWarning, TellsTheTwoSpans) {
    EXPECT_EQ(scaleWarning(manual(L"-100", L"100", L"-50.0", L"50.0")),
              "x spans 200 and y 100: the orbit is out of shape");
    EXPECT_EQ(scaleWarning({{L"autoScaleType", L"1"}}),
              "x and y are scaled each by its own values: the orbit is out of shape");
}

TEST(EqualSpans, WidenTheShorterOneAboutItsMiddle) {
    const ControlSettings equal = withEqualSpans(manual(L"-100", L"100", L"0", L"50"));
    EXPECT_FALSE(scaleWarning(equal));
    EXPECT_EQ(equal.at(L"minXValue"), L"-100.000000000000000");
    EXPECT_EQ(equal.at(L"minYValue"), L"-75.000000000000000");  // 25 - 100
    EXPECT_EQ(equal.at(L"maxYValue"), L"125.000000000000000");
}

TEST(EqualSpans, MakeTheAutomaticScaleAbsolute) {
    EXPECT_EQ(withEqualSpans({{L"autoScaleType", L"1"}, {L"tickCount", L"7"}}),
              (ControlSettings{{L"tickCount", L"7"}}));
}

}  // namespace
}  // namespace Rotavue::Workbench
