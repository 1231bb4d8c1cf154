#include "cli/text_table.h"

#include <gtest/gtest.h>

namespace Rotavue::Cli {

namespace {

TEST(TextTable, ColumnsAreAsWideAsTheirWidestCell) {
    TextTable table;
    table.add({"order", "X", "lag"});
    table.add({"1X", "27.04", "8.3"});
    EXPECT_EQ(table.text(),
              "order      X  lag\n"
              "1X     27.04  8.3\n");
}

TEST(TextTable, WidthsCountCharactersAndNotBytes) {
    TextTable table;
    table.add({"a", "\u00b5m"});
    table.add({"b", "abc"});
    EXPECT_EQ(table.text(), "a   \u00b5m\nb  abc\n");
}

TEST(TextTable, ShortLinesEndWithTheirLastCell) {
    TextTable table;
    table.add({"one", "two"});
    table.add({"1"});
    table.add({});
    EXPECT_EQ(table.text(), "one  two\n1\n\n");
}

}  // namespace

}  // namespace Rotavue::Cli
