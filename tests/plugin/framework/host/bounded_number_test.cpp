#include "plugin/framework/host/bounded_number.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace Meridax::Host {
namespace {

std::string bounded(const std::string& text) {
    return boundedNumber(text, '.');
}

double numberIn(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}

std::string zeros(std::size_t count) {
    return std::string(count, '0');
}

TEST(BoundedNumber, LeavesEverythingButLongNumbersAlone) {
    for (const std::string& text :
         {std::string(), std::string("2.5"), std::string("no number ") + zeros(2000),
          "0x" + std::string(2000, 'F'), "nan" + std::string(2000, ' '), std::string(2000, ' ')})
        EXPECT_EQ(bounded(text), text);
}

TEST(BoundedNumber, TakesAsManyDigitsAsCanDecide) {
    // 802 characters are what a shortened number has: point and mark of the rest included.
    const std::string shortEnough = "1." + std::string(800, '3');
    EXPECT_EQ(bounded(shortEnough), shortEnough);
    EXPECT_EQ(bounded(shortEnough + "3"), "1." + std::string(799, '3') + "1e0");
}

TEST(BoundedNumber, KeepsWhatStandsBeforeAndBehind) {
    EXPECT_EQ(bounded(" \t-" + zeros(900) + "25 um"), " \t-2.5e1 um");
    EXPECT_EQ(bounded("+4" + zeros(900) + "e-900e5"), "+4." + zeros(799) + "e0e5");
    EXPECT_EQ(bounded("7" + zeros(900) + "E+x"), "7." + zeros(799) + "e900E+x");
}

TEST(BoundedNumber, FindsThePowerOfTheFirstDigit) {
    EXPECT_EQ(bounded("0." + zeros(900) + "5"), "5.e-901");
    EXPECT_EQ(bounded("12" + zeros(898)), "1.2" + zeros(798) + "e899");
    EXPECT_EQ(bounded("0." + zeros(900)), "0e0");
}

// A single zero would make one number of both.
TEST(BoundedNumber, ZeroJoinsNothingThatFollows) {
    for (const std::string& text :
         {zeros(900) + "x1F", "0." + zeros(900) + ".5", zeros(900) + "e5", zeros(900) + "e"}) {
        const std::string shortened = bounded(text);
        char* end = nullptr;
        EXPECT_EQ(std::strtod(shortened.c_str(), &end), 0.0) << text;
        char* whole = nullptr;
        EXPECT_EQ(std::strtod(text.c_str(), &whole), 0.0);
        EXPECT_STREQ(end, whole);
    }
}

TEST(BoundedNumber, TakesThePointOfTheLocale) {
    EXPECT_EQ(boundedNumber(std::string("0,") + zeros(900) + "5", ','), "5,e-901");
    EXPECT_EQ(boundedNumber(std::wstring(L"0.") + std::wstring(900, L'0') + L"5", L'.'),
              L"5.e-901");
}

// 9007199254740993 lies in the middle between two doubles; halves go to the even one, below, and
// whatever follows far behind decides for the one above.
TEST(BoundedNumber, KeepsTheLastDigitThatDecides) {
    const std::string middle = "9007199254740993." + zeros(5000);
    EXPECT_EQ(numberIn(bounded(middle)), 9007199254740992.0);
    EXPECT_EQ(numberIn(bounded(middle + "1")), 9007199254740994.0);
    EXPECT_LT(bounded(middle + "1").size(), 820U);
}

TEST(BoundedNumber, StaysWithinTheRangeThatAnExponentGives) {
    EXPECT_EQ(numberIn(bounded("1" + zeros(1000) + "e-1000")), 1.0);
    EXPECT_EQ(numberIn(bounded("0." + zeros(999) + "1e1000")), 1.0);
    EXPECT_EQ(numberIn(bounded("1" + zeros(1000))), std::numeric_limits<double>::infinity());
    EXPECT_EQ(numberIn(bounded("1" + zeros(1000) + "e-99999999999999999999")), 0.0);
}

}  // namespace
}  // namespace Meridax::Host
