#include "workbench/recording/fields.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

using Fields = std::vector<std::string_view>;

TEST(Fields, AreOneMoreThanTheDelimiters) {
    EXPECT_EQ(fieldsOf("1,2,3", ','), (Fields{"1", "2", "3"}));
    EXPECT_EQ(fieldsOf("1,,", ','), (Fields{"1", "", ""}));
    EXPECT_EQ(fieldsOf("", ','), Fields{""});
    EXPECT_EQ(fieldsOf("1;2,5", ';'), (Fields{"1", "2,5"}));
}

TEST(Fields, ComeWithoutBlanksAndQuotes) {
    EXPECT_EQ(fieldsOf(" 1 ,\t2, \"3\" ", ','), (Fields{"1", "2", "3"}));
    EXPECT_EQ(fieldsOf("\" x \",\"\"", ','), (Fields{"x", ""}));
}

TEST(Fields, KeepADelimiterBetweenQuotes) {
    EXPECT_EQ(fieldsOf("\"0,5\",\"1,25\"", ','), (Fields{"0,5", "1,25"}));
    EXPECT_EQ(fieldsOf("1,\"open,2", ','), (Fields{"1", "open,2"}));
}

TEST(Fields, PointIntoTheirLine) {
    const std::string_view line = "1, abc";
    EXPECT_EQ(fieldsOf(line, ',')[1].data(), line.data() + 3);
}

}  // namespace
}  // namespace Rotavue::Workbench
