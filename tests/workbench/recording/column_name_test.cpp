#include "workbench/recording/column_name.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

TEST(ColumnName, LeavesItsUnitInBrackets) {
    struct Case {
        const char* text;
        const char* name;
        const char* unit;
    };
    const Case cases[] = {{"Disp X [um]", "Disp X", "um"},
                          {"Time(s)", "Time", "s"},
                          {"x", "x", ""},
                          {"[um]", "[um]", ""},
                          {"a (b) [ c ]", "a (b)", "c"},
                          {"x]", "x]", ""},
                          {"", "", ""}};
    for (const Case& c : cases) {
        EXPECT_EQ(splitUnit(c.text).name, c.name) << c.text;
        EXPECT_EQ(splitUnit(c.text).unit, c.unit) << c.text;
    }
}

TEST(ColumnName, KnowsAUnitByItself) {
    for (const char* text : {"[furlong]", "(V)", "um", "\u00B5m", "1/min"}) {
        EXPECT_TRUE(isUnitText(text)) << text;
    }
    for (const char* text : {"x", "time", "", "[um", "Probe (1)"}) {
        EXPECT_FALSE(isUnitText(text)) << text;
    }
    EXPECT_EQ(withoutBrackets("( V )"), "V");
    EXPECT_EQ(withoutBrackets("V"), "V");
    EXPECT_EQ(withoutBrackets("]"), "]");
}

TEST(ColumnName, FallsIntoWords) {
    using Words = std::vector<std::string>;
    EXPECT_EQ(wordsOf("Mach1.P1.X"), (Words{"mach1", "p1", "x"}));
    EXPECT_EQ(wordsOf("probeX"), (Words{"probe", "x"}));
    EXPECT_EQ(wordsOf("Ext. sync."), (Words{"ext", "sync"}));
    EXPECT_EQ(wordsOf("plane1_x"), (Words{"plane1", "x"}));
    EXPECT_EQ(wordsOf("RPM"), Words{"rpm"});
    EXPECT_EQ(wordsOf("--"), Words{});
}

}  // namespace
}  // namespace Rotavue::Workbench
