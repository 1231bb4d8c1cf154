#include "plugin/setup_document/string_helper.h"

#include <gtest/gtest.h>

#include <clocale>
#include <stdexcept>
#include <string>

/// Numbers of a setup under a host that has put the C library under a locale of its own, which the
/// module's C++ library need not know.
namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

class NumberLocale : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(std::setlocale(LC_ALL, "German_Germany.1252"), nullptr); }
    ~NumberLocale() override { std::setlocale(LC_ALL, "C"); }
};

TEST_F(NumberLocale, HasAComma) {
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
}

TEST_F(NumberLocale, ChangesNoNumberThatIsRead) {
    EXPECT_EQ(textToDouble("2.5"), 2.5);
    EXPECT_EQ(textToDouble("2,5"), 2.5);
    EXPECT_EQ(textToDouble("1,5,5"), 1.5);
    EXPECT_EQ(textToInt("12abc"), 12);
    EXPECT_THROW(textToDouble(",abc"), std::invalid_argument);
    EXPECT_THROW(textToDouble("1.5e999"), std::out_of_range);
}

TEST_F(NumberLocale, ChangesNoNumberThatIsWritten) {
    EXPECT_EQ(doubleToText(-1234.5), "-1234.500000000000000");
    EXPECT_EQ(textToDouble(doubleToText(-1234.5)), -1234.5);
}

TEST_F(NumberLocale, ComesAndGoesBetweenTwoTexts) {
    EXPECT_EQ(textToDouble("2.5"), 2.5);
    ASSERT_NE(std::setlocale(LC_NUMERIC, "C"), nullptr);
    EXPECT_EQ(textToDouble("2.5"), 2.5);
    EXPECT_EQ(textToDouble("2,5"), 2.5);
}

TEST_F(NumberLocale, WithoutGroupingIsMadeOrRefusedAsABadName) {
    EXPECT_EQ(makeNoSeparatorLocale("C").name(), "*");
    try {
        makeNoSeparatorLocale("no_SUCH.locale");
        FAIL() << "a locale of that name";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "bad locale name");
    }
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
