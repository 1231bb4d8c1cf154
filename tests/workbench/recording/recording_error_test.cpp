#include "workbench/recording/recording_error.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

TEST(RecordingError, NamesFileLineColumnFoundAndAllowed) {
    const RecordingError error({"kit/run.csv", 12, 9}, "\"abc\"", "a number");
    EXPECT_STREQ(error.what(), "kit/run.csv:12:9: found \"abc\", allowed: a number");
    EXPECT_EQ(error.place().line, 12u);
    EXPECT_EQ(error.place().column, 9u);
}

TEST(RecordingError, LeavesOutAPlaceThatTheFaultDoesNotHave) {
    EXPECT_STREQ(RecordingError({"run.csv", 12, 0}, "f", "a").what(),
                 "run.csv:12: found f, allowed: a");
    EXPECT_STREQ(RecordingError({"run.csv", 0, 9}, "f", "a").what(),
                 "run.csv: found f, allowed: a");
    EXPECT_STREQ(RecordingError({}, "f", "a").what(), "found f, allowed: a");
}

TEST(RecordingError, StaysOneLineWhateverTheNamesHold) {
    const RecordingError error({"a\nb.csv"}, inQuotes("x\r\n\x7Fy"), "a\tb");
    EXPECT_STREQ(error.what(), "a?b.csv: found \"x???y\", allowed: a?b");
}

TEST(InQuotes, CutsLongTextsBetweenCharacters) {
    EXPECT_EQ(inQuotes(std::string(40, 'a')), '"' + std::string(40, 'a') + '"');
    EXPECT_EQ(inQuotes(std::string(41, 'a')), '"' + std::string(40, 'a') + "...\"");
    // The 40th and 41st byte are one character: both go.
    EXPECT_EQ(inQuotes(std::string(39, 'a') + "\u00B5m"), '"' + std::string(39, 'a') + "...\"");
}

}  // namespace
}  // namespace Rotavue::Workbench
