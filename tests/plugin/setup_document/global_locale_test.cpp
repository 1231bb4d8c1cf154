#include "plugin/setup_document/string_helper.h"
#include "tests/plugin/setup_document/c_locale.h"

#include <gtest/gtest.h>

#include <locale>
#include <sstream>
#include <string>

namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

using Tests::GlobalLocale;

TEST(DoubleText, HasTheFormOfTheGlobalLocaleWhereAHostSetsOne) {
    const GlobalLocale locale("de_DE.UTF-8");
    EXPECT_EQ(doubleToText(0.5), "0,500000000000000");
    EXPECT_EQ(textToDouble(doubleToText(0.5)), 0.5);
    // Its grouping comes along, and is read as the decimal point.
    EXPECT_EQ(doubleToText(1000.0), "1.000,000000000000000");
    EXPECT_EQ(textToDouble(doubleToText(1000.0)), 1.0);
}

TEST(IntegerText, NeverHasTheFormOfALocale) {
    const GlobalLocale locale("en_US.UTF-8");
    EXPECT_EQ(intToText(1234567), "1234567");
}

TEST(NoSeparatorLocale, KeepsTheDecimalPointAndDropsTheGrouping) {
    std::ostringstream stream;
    stream.imbue(makeNoSeparatorLocale(Tests::findTestLocale("de_DE.UTF-8")));
    stream << 1234567.5;
    EXPECT_EQ(stream.str(), "1,23457e+06");
    stream.str("");
    stream << std::fixed << 1234567.5;
    EXPECT_EQ(stream.str(), "1234567,500000");
}

TEST(NoSeparatorLocale, HasANulSeparatorNoGroupingAndNoNameOfItsOwn) {
    const std::locale locale = makeNoSeparatorLocale(Tests::findTestLocale("en_US.UTF-8"));
    const auto& form = std::use_facet<std::numpunct<char>>(locale);
    EXPECT_EQ(form.thousands_sep(), '\0');
    EXPECT_EQ(form.grouping(), "");
    EXPECT_EQ(form.decimal_point(), '.');
    EXPECT_EQ(form.truename(), "true");
    EXPECT_EQ(form.falsename(), "false");
    EXPECT_EQ(locale.name(), "*");
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
