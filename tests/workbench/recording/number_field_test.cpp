#include "workbench/recording/number_field.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace Rotavue::Workbench {
namespace {

TEST(NumberField, TakesPointCommaSignAndExponent) {
    struct Case {
        const char* text;
        double value;
    };
    const Case cases[] = {{"1", 1},           {"-2.5", -2.5}, {"+2.5", 2.5},  {".5", 0.5},
                          {"5.", 5},          {"1e-3", 1e-3}, {"1E+3", 1000}, {"0,001", 0.001},
                          {"-12,5", -12.5},   {"+,5", 0.5},   {"1,5e2", 150}, {"1e30", 1e30},
                          {"0.0000001", 1e-7}};
    for (const Case& c : cases) {
        EXPECT_EQ(readNumber(c.text).kind, FieldKind::Number) << c.text;
        EXPECT_EQ(readNumber(c.text).value, c.value) << c.text;
    }
}

TEST(NumberField, ReadsAGapAsNoNumber) {
    for (const char* text : {"", "nan", "NaN", "-nan", "inf", "-INF", "+inf", "infinity"}) {
        EXPECT_EQ(readNumber(text).kind, FieldKind::Gap) << text;
        EXPECT_TRUE(std::isnan(readNumber(text).value)) << text;
    }
}

TEST(NumberField, TellsTextFromNumbers) {
    for (const char* text : {"x", "1x", "1 2", "--1", "+-1", "+", "-", ".", ",", "1.5,2", "1,2,3",
                             "0x10", "e5", "1e", "12:30"}) {
        EXPECT_EQ(readNumber(text).kind, FieldKind::Text) << text;
    }
    EXPECT_EQ(readNumber("0," + std::string(99, '1')).kind, FieldKind::Text);
}

TEST(NumberField, RefusesWhatNoReadingCanBe) {
    for (const char* text : {"1e31", "-1e31", "1e999", "-1,5e999"}) {
        EXPECT_EQ(readNumber(text).kind, FieldKind::OutOfRange) << text;
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
