#include "plugin/setup_document/string_helper.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

template <class Exception, class Call>
std::string complaintOf(Call call) {
    try {
        call();
    } catch (const Exception& error) {
        return error.what();
    }
    return "no exception";
}

TEST(BoolText, IsWrittenWithCapitals) {
    EXPECT_EQ(boolToText(true), "True");
    EXPECT_EQ(boolToText(false), "False");
}

TEST(BoolText, IsReadInAnyCaseAndAsANumberAndNeverFails) {
    struct Case {
        std::string text;
        bool value;
    };
    const std::vector<Case> cases = {
        {"TRUE", true},
        {"True", true},
        {"tRuE", true},
        {"FALSE", false},
        {"False", false},
        {"1", true},
        {"2.5", true},
        {"-3", true},
        {" 1", true},
        {"1e3", true},
        {"0x10", true},
        {"0", false},
        {"0.0", false},
        {"-0", false},
        {"1e-20", false},
        {"", false},
        {"abc", false},
        {"1x", false},
        {"1 ", false},
        {"2e", false},
        {"truefalse", false},
        {"true ", false},
        {"yes", false},
        {"inf", true},
        {"nan", false},
        {"1e999", true},
        {std::string("1\0", 2), false},
        {std::string("true\0", 5), false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(textToBool(c.text), c.value) << '"' << c.text << '"';
}

TEST(BoolText, CountsANumberAsTrueOnlyAboveTheMachineEpsilon) {
    // The epsilon of a double is 2^-52 = 2.220446049250313e-16; the test is a strict one.
    EXPECT_FALSE(textToBool("2.220446049250313e-16"));
    EXPECT_TRUE(textToBool("2.220446049250314e-16"));
    EXPECT_TRUE(textToBool("-2.220446049250314e-16"));
}

TEST(IntegerText, IsPlainSignedDecimal) {
    EXPECT_EQ(intToText(0), "0");
    EXPECT_EQ(intToText(7), "7");
    EXPECT_EQ(intToText(-1), "-1");
    EXPECT_EQ(intToText(16750848), "16750848");
    EXPECT_EQ(intToText(std::numeric_limits<std::int32_t>::max()), "2147483647");
    EXPECT_EQ(intToText(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(IntegerText, IsReadFromTheStartOfTheText) {
    EXPECT_EQ(textToInt("12abc"), 12);
    EXPECT_EQ(textToInt(" \t-5"), -5);
    EXPECT_EQ(textToInt("+9"), 9);
    EXPECT_EQ(textToInt("2.9"), 2);
    EXPECT_EQ(textToInt("0x10"), 0);
    EXPECT_EQ(textToInt(std::string("4\0002", 3)), 4);
}

TEST(IntegerText, IsCutToItsLow32BitsWithoutACheck) {
    EXPECT_EQ(textToInt("4294967296"), 0);
    EXPECT_EQ(textToInt("4294967297"), 1);
    EXPECT_EQ(textToInt("2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(textToInt("9223372036854775807"), -1);  // all 32 low bits set
    EXPECT_EQ(textToInt("-9223372036854775808"), 0);
}

TEST(IntegerText, IsRefusedWithoutANumberAndBeyond64Bits) {
    for (const char* text : {"", "abc", "-", " ", "#", "x12"}) {
        EXPECT_EQ(complaintOf<std::invalid_argument>([&] { textToInt(text); }),
                  "invalid stoll argument")
            << '"' << text << '"';
    }
    for (const char* text :
         {"99999999999999999999", "9223372036854775808", "-9223372036854775809"}) {
        EXPECT_EQ(complaintOf<std::out_of_range>([&] { textToInt(text); }),
                  "stoll argument out of range")
            << text;
    }
}

TEST(DoubleText, HasAlwaysFifteenDigitsBehindThePoint) {
    EXPECT_EQ(doubleToText(1.0), "1.000000000000000");
    EXPECT_EQ(doubleToText(-0.5), "-0.500000000000000");
    EXPECT_EQ(doubleToText(100.0), "100.000000000000000");
    EXPECT_EQ(doubleToText(0.0), "0.000000000000000");
    EXPECT_EQ(doubleToText(-0.0), "-0.000000000000000");
    EXPECT_EQ(doubleToText(1e21), "1000000000000000000000.000000000000000");
}

TEST(DoubleText, LosesDigitsBelowItsPrecision) {
    EXPECT_EQ(doubleToText(1e-15), "0.000000000000001");
    EXPECT_EQ(doubleToText(4e-16), "0.000000000000000");
    EXPECT_EQ(textToDouble(doubleToText(1e-300)), 0.0);
}

TEST(DoubleText, CarriesWhatIsNoNumberAndComesBack) {
    EXPECT_EQ(textToDouble(doubleToText(std::numeric_limits<double>::infinity())),
              std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(textToDouble(doubleToText(std::nan("")))));
    EXPECT_EQ(textToDouble(doubleToText(std::numeric_limits<double>::max())),
              std::numeric_limits<double>::max());
}

TEST(DoubleText, IsReadWithACommaOrAPoint) {
    EXPECT_EQ(textToDouble("2,5"), 2.5);
    EXPECT_EQ(textToDouble("2.5"), 2.5);
    EXPECT_EQ(textToDouble(" -1e3x"), -1000.0);
    EXPECT_EQ(textToDouble(",5"), 0.5);
    EXPECT_EQ(textToDouble("7"), 7.0);
}

TEST(DoubleText, TakesOnlyTheFirstSeparatorForThePoint) {
    EXPECT_EQ(textToDouble("1,5,5"), 1.5);
    EXPECT_EQ(textToDouble("1.5,5"), 1.5);
    EXPECT_EQ(textToDouble("1.000,5"), 1.0);
    EXPECT_EQ(textToDouble("3e1,9"), 30.0);
}

TEST(DoubleText, IsRefusedWithoutANumberAndBeyondADouble) {
    for (const char* text : {"", "abc", ",", ".", "-", "e5"}) {
        EXPECT_EQ(complaintOf<std::invalid_argument>([&] { textToDouble(text); }),
                  "invalid stod argument")
            << '"' << text << '"';
    }
    for (const char* text : {"1e400", "-1e400", "1e-400"}) {
        EXPECT_EQ(complaintOf<std::out_of_range>([&] { textToDouble(text); }),
                  "stod argument out of range")
            << text;
    }
}

// The C library calls a number below the least normal one out of range.
TEST(DoubleText, IsReadDownToTheLeastNormalNumber) {
    constexpr double Least = std::numeric_limits<double>::min();  // 2.2250738585072014e-308
    EXPECT_EQ(textToDouble("2.2250738585072014e-308"), Least);
    EXPECT_EQ(textToDouble("-2.2250738585072014e-308"), -Least);
    for (const char* text : {"1e-310", "4.9e-324", "-4.9e-324"})
        EXPECT_THROW(textToDouble(text), std::out_of_range) << text;
}

TEST(FloatText, CountsEveryCommaAsAPoint) {
    EXPECT_EQ(textToFloat(L"2,5"), 2.5F);
    EXPECT_EQ(textToFloat(L"2.5um"), 2.5F);
    EXPECT_EQ(textToFloat(L"1,5,5"), 1.5F);
    EXPECT_EQ(textToFloat(L"0,1"), 0.1F);
}

TEST(FloatText, IsRefusedWithoutANumberAndBeyondAFloat) {
    EXPECT_EQ(complaintOf<std::invalid_argument>([] { textToFloat(L"um"); }),
              "invalid stof argument");
    EXPECT_EQ(complaintOf<std::out_of_range>([] { textToFloat(L"1e39"); }),
              "stof argument out of range");
}

TEST(NumberTexts, LeaveTheErrorNumberOfTheCLibraryAlone) {
    errno = EDOM;
    EXPECT_EQ(textToInt("1"), 1);
    EXPECT_THROW(textToDouble("1e400"), std::out_of_range);
    EXPECT_TRUE(textToBool("1e400"));
    EXPECT_EQ(errno, EDOM);
    errno = ERANGE;
    EXPECT_EQ(textToDouble("1"), 1.0) << "an old range error is none of this text's";
    EXPECT_EQ(textToInt("1"), 1);
}

TEST(NumberTexts, OfAMegabyteAreReadLikeShortOnes) {
    const std::string zeros(1 << 20, '0');
    EXPECT_EQ(textToInt(zeros + "12"), 12);
    EXPECT_EQ(textToDouble(zeros + "12.5" + zeros), 12.5);
    EXPECT_TRUE(textToBool(zeros + "1"));
    EXPECT_THROW(textToInt("1" + zeros), std::out_of_range);
    EXPECT_THROW(textToDouble("1" + zeros), std::out_of_range);
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
