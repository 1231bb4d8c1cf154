#include "workbench/recording/number_field.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <random>
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

TEST(NumberField, IsTheNearestDoubleHoweverManyDigits) {
    // What the language's own conversion makes of the same text, to the last bit.
    std::mt19937_64 random(1);
    for (int i = 0; i < 100000; ++i) {
        const std::size_t length = 1 + random() % 20;
        std::string text(length, '0');
        for (char& digit : text)
            digit = static_cast<char>('0' + random() % 10);
        text.insert(random() % (length + 1), ".");
        if (random() % 2 == 0) text.insert(0, "-");
        const NumberField read = readNumber(text);
        ASSERT_EQ(read.kind, FieldKind::Number) << text;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(read.value),
                  std::bit_cast<std::uint64_t>(std::strtod(text.c_str(), nullptr)))
            << text;
    }
}

TEST(NumberField, KeepsTheSignOfZero) {
    for (const char* text : {"-0", "-0.0", "-.0", "-0,00"})
        EXPECT_TRUE(std::signbit(readNumber(text).value)) << text;
    EXPECT_FALSE(std::signbit(readNumber("0.0").value));
}

TEST(NumberField, ReadsAGapAsNoNumber) {
    for (const char* text : {"", "nan", "NaN", "-nan", "inf", "-INF", "+inf", "infinity"}) {
        EXPECT_EQ(readNumber(text).kind, FieldKind::Gap) << text;
        EXPECT_TRUE(std::isnan(readNumber(text).value)) << text;
    }
}

TEST(NumberField, TellsTextFromNumbers) {
    for (const char* text : {"x", "1x", "1 2", "--1", "+-1", "+", "-", ".", ",", "-.", "..", "1..",
                             "1.5,2", "1,2,3", "0x10", "e5", "1e", "12:30"}) {
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
