#include "tests/sessions/log_difference.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

TEST(LogDifference, IsNothingForEqualLogs) {
    EXPECT_EQ(logDifference("a\nb\n", "a\nb\n"), "");
    EXPECT_EQ(logDifference("", ""), "");
}

TEST(LogDifference, ShowsTheLinesThatDifferAndThoseAround) {
    EXPECT_EQ(logDifference("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nx\ny\n6\n7\n8\n9\n"),
              "line 5:\n  2\n  3\n  4\n- 5\n+ x\n+ y\n  6\n  7\n  8\n");
}

TEST(LogDifference, ShowsLinesThatAreMissingOrTooMany) {
    EXPECT_EQ(logDifference("1\n2\n3\n", "1\n3\n"), "line 2:\n  1\n- 2\n  3\n");
    EXPECT_EQ(logDifference("1\n", "1\n2\n"), "line 2:\n  1\n+ 2\n");
    EXPECT_EQ(logDifference("1\n", ""), "line 1:\n- 1\n");
}

TEST(LogDifference, CutsLongRuns) {
    std::string got;
    for (int i = 0; i < 50; ++i)
        got += "x\n";
    const std::string difference = logDifference("", got);
    EXPECT_NE(difference.find("+ ... 10 more lines\n"), std::string::npos) << difference;
}

}  // namespace
}  // namespace Rotavue::HostKit
