#include "plugin/setup_document/string_helper.h"
#include "tests/plugin/setup_document/c_locale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <stdexcept>
#include <string>

namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

using Tests::CLocale;

class NumberTextsUnder : public testing::TestWithParam<std::string> {};

TEST_P(NumberTextsUnder, AnyCLocaleAreWrittenAlike) {
    const CLocale locale(GetParam());
    ASSERT_TRUE(locale.isSet());
    EXPECT_EQ(doubleToText(1234567.5), "1234567.500000000000000");
    EXPECT_EQ(doubleToText(-0.5), "-0.500000000000000");
    EXPECT_EQ(intToText(-2147483647 - 1), "-2147483648");
    EXPECT_EQ(intToText(1234567), "1234567");
    EXPECT_EQ(boolToText(true), "True");
}

TEST_P(NumberTextsUnder, AnyCLocaleAreReadAlike) {
    const CLocale locale(GetParam());
    ASSERT_TRUE(locale.isSet());
    EXPECT_EQ(textToDouble("2.5"), 2.5);
    EXPECT_EQ(textToDouble("2,5"), 2.5);
    EXPECT_EQ(textToDouble("1,5,5"), 1.5);
    EXPECT_EQ(textToDouble("100.000000000000000"), 100.0);
    EXPECT_EQ(textToInt("4294967297"), 1);
    EXPECT_EQ(textToInt("1,234"), 1);
    EXPECT_TRUE(textToBool("TRUE"));
    EXPECT_TRUE(textToBool("1"));
    EXPECT_FALSE(textToBool("0.0"));
    EXPECT_FALSE(textToBool("abc"));
}

TEST_P(NumberTextsUnder, AnyCLocaleComeBackAsTheyWere) {
    const CLocale locale(GetParam());
    ASSERT_TRUE(locale.isSet());
    for (const double value : {100.0, -1.0, 0.1, 1e-9, 123456.789, 1e300})
        EXPECT_EQ(textToDouble(doubleToText(value)), value);
}

INSTANTIATE_TEST_SUITE_P(Locales, NumberTextsUnder,
                         testing::Values("C", "en_US.UTF-8", "de_DE.UTF-8"), [](const auto& name) {
                             return name.param.substr(0, name.param.find('_'));
                         });

TEST(NumberTexts, FollowTheCLocaleForNumbersWhereAHostSetsThatAlone) {
    const CLocale restored("C");
    ASSERT_NE(std::setlocale(LC_NUMERIC, Tests::findTestLocale("de_DE.UTF-8").c_str()), nullptr);
    EXPECT_EQ(textToDouble("2.5"), 2.5);
    EXPECT_EQ(textToDouble("2,5"), 2.5);
    ASSERT_NE(std::setlocale(LC_NUMERIC, "C"), nullptr);
    EXPECT_EQ(textToDouble("2.5"), 2.5) << "the decimal point is found anew for each text";
    EXPECT_EQ(textToDouble("2,5"), 2.5);
}

TEST(BoolText, IsReadWithTheDecimalPointOfTheCLocale) {
    const CLocale locale("de_DE.UTF-8");
    ASSERT_TRUE(locale.isSet());
    EXPECT_TRUE(textToBool("2,5"));
    EXPECT_FALSE(textToBool("2.5"));  // the number ends at the point, which follows it
    EXPECT_FALSE(textToBool("0,0"));
}

TEST(FloatText, StopsAtThePointWhereTheCLocaleHasAComma) {
    const CLocale locale("de_DE.UTF-8");
    ASSERT_TRUE(locale.isSet());
    EXPECT_EQ(textToFloat(L"2,5"), 2.0F);
    EXPECT_EQ(textToFloat(L"2.5"), 2.0F);
}

TEST(NoSeparatorLocale, IsRefusedForANameThatIsNotThere) {
    try {
        makeNoSeparatorLocale("no_SUCH.locale");
        FAIL() << "a locale of that name";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "bad locale name");
    }
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
