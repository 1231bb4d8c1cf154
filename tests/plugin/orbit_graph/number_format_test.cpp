#include "plugin/orbit_graph/number_format.h"

#include <gtest/gtest.h>

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(NumberFormat, HasAsManyDecimalsAsAsked) {
    EXPECT_EQ(valueFormat(0), L"%.0f");
    EXPECT_EQ(valueFormat(3), L"%.3f");
    EXPECT_EQ(valueFormat(12), L"%.12f");
}

TEST(NumberFormat, HoldsHostileDecimalsWithinBounds) {
    EXPECT_EQ(valueFormat(-1), L"%.0f");
    EXPECT_EQ(valueFormat(std::numeric_limits<std::int32_t>::min()), L"%.0f");
    EXPECT_EQ(valueFormat(std::numeric_limits<std::int32_t>::max()), L"%.1074f");
}

TEST(NumberFormat, RoundsToItsDecimals) {
    EXPECT_EQ(formatValue(L"%.3f", 1.0), L"1.000");
    EXPECT_EQ(formatValue(L"%.1f", -3.3), L"-3.3");
    EXPECT_EQ(formatValue(L"%.2f", 2.71828), L"2.72");
    EXPECT_EQ(formatValue(L"%.0f", -0.0), L"-0");
}

TEST(NumberFormat, GroupsNoThousands) {
    EXPECT_EQ(formatValue(L"%.0f", 1234567.0), L"1234567");
}

TEST(NumberFormat, HoldsTheLongestNumber) {
    // Sign, 309 digits, point, 1074 digits.
    const std::wstring text = formatValue(valueFormat(MostDecimals), -1.7976931348623157e308);
    EXPECT_EQ(text.size(), 1U + 309U + 1U + 1074U);
    EXPECT_EQ(text.substr(0, 6), L"-17976");
}

TEST(NumberFormat, EndsTheSmallestNumberAtItsLastDigit) {
    const double smallest = std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(formatValue(valueFormat(MostDecimals), smallest).back(), L'5');
}

TEST(NumberFormat, WritesWhatIsNoNumber) {
    EXPECT_EQ(formatValue(L"%.1f", Infinity), L"inf");
    EXPECT_EQ(formatValue(L"%.1f", -Infinity), L"-inf");
    EXPECT_EQ(formatValue(L"%.1f", std::numeric_limits<double>::quiet_NaN()), L"nan");
}

TEST(NumberFormat, EndsAnInsertAtItsFirstZeroCharacter) {
    EXPECT_EQ(inserted(L"um"), L"um");
    EXPECT_EQ(inserted(std::wstring(L"um\0mil", 6)), L"um");
    EXPECT_EQ(inserted(L""), L"");
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
