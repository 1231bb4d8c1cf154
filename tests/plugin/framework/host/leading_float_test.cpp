#include "plugin/framework/host/leading_float.h"

#include <gtest/gtest.h>

namespace Meridax::Host {
namespace {

struct Reading {
    std::wstring text;
    float number;
};

class LeadingFloat : public testing::TestWithParam<Reading> {};

TEST_P(LeadingFloat, TakesTheLongestNumberAtTheStart) {
    EXPECT_EQ(leadingFloat(GetParam().text), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Texts, LeadingFloat,
                         testing::Values(Reading{L"45", 45.0F}, Reading{L"-12.5", -12.5F},
                                         Reading{L"  7", 7.0F}, Reading{L"12,5", 12.0F},
                                         Reading{L"90 degrees", 90.0F}, Reading{L"1e2x", 100.0F},
                                         Reading{L".5", 0.5F}, Reading{L"+3", 3.0F}));

TEST(LeadingFloatRange, GoesNoFurtherThanThirtyTwoBits) {
    // 0.1 has no exact binary form: the nearest 32-bit number is another one than the 64-bit one.
    EXPECT_NE(static_cast<double>(leadingFloat(L"0.1")), 0.1);
}

class NoNumber : public testing::TestWithParam<std::wstring> {};

TEST_P(NoNumber, RaisesInvalidArgument) {
    try {
        leadingFloat(GetParam());
        ADD_FAILURE() << "went on";
    } catch (const std::invalid_argument& error) {
        EXPECT_STREQ(error.what(), "invalid stof argument");
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, NoNumber, testing::Values(L"", L" ", L"abc", L"-", L",5"));

class OutOfRange : public testing::TestWithParam<std::wstring> {};

TEST_P(OutOfRange, RaisesOutOfRange) {
    try {
        leadingFloat(GetParam());
        ADD_FAILURE() << "went on";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "stof argument out of range");
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, OutOfRange, testing::Values(L"1e39", L"-1e39", L"1e-60"));

TEST(LeadingFloatRange, TakesAMegabyteLikeAShortText) {
    const std::wstring zeros(1 << 20, L'0');
    EXPECT_EQ(leadingFloat(zeros + L"45 degrees"), 45.0F);
    EXPECT_EQ(leadingFloat(L"45." + zeros + L"1"), 45.0F);
    EXPECT_EQ(leadingFloat(std::wstring(1 << 20, L' ') + L"7"), 7.0F);
    EXPECT_THROW(leadingFloat(L"45" + zeros), std::out_of_range);
    EXPECT_THROW(leadingFloat(std::wstring(1 << 20, L'x')), std::invalid_argument);
}

TEST(LeadingFloatRange, LeavesAnOldRangeErrorAlone) {
    errno = ERANGE;
    EXPECT_EQ(leadingFloat(L"1"), 1.0F);
    EXPECT_EQ(errno, ERANGE);
}

}  // namespace
}  // namespace Meridax::Host
