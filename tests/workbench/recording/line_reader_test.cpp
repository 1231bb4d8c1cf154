#include "workbench/recording/line_reader.h"

#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

class LineReaderTest : public ScratchFolder {
protected:
    std::vector<std::string> linesOf(std::string_view text) const {
        LineReader reader(write("f", text));
        std::vector<std::string> lines;
        while (reader.next())
            lines.emplace_back(reader.line());
        EXPECT_EQ(reader.number(), lines.size());
        return lines;
    }
    std::string faultOf(std::string_view text) const {
        return messageOf([&] { linesOf(text); });
    }
};

using Lines = std::vector<std::string>;

TEST_F(LineReaderTest, TakesEveryEndOfALine) {
    EXPECT_EQ(linesOf("a\nb\r\nc"), (Lines{"a", "b", "c"}));
    EXPECT_EQ(linesOf("a\n\n"), (Lines{"a", ""}));
    EXPECT_EQ(linesOf("\n"), Lines{""});
}

TEST_F(LineReaderTest, PassesOverAByteOrderMark) {
    EXPECT_EQ(linesOf("\xEF\xBB\xBFt,x\n"), Lines{"t,x"});
}

TEST_F(LineReaderTest, KeepsLinesWholeAcrossItsBuffer) {
    // 3 x 100,001 bytes: the third line begins inside the buffer of 262,144 and ends behind it.
    const std::string line(100'000, 'a');
    EXPECT_EQ(linesOf(line + '\n' + line + '\n' + line + "\nend"),
              (Lines{line, line, line, "end"}));
}

TEST_F(LineReaderTest, TakesTheLongestLineAndRefusesALongerOne) {
    const std::string longest(LineReader::LongestLine, 'a');
    EXPECT_EQ(linesOf(longest + "\r\nb"), (Lines{longest, "b"}));
    const std::string fault = "f:2: found a longer line, allowed: lines of at most 262144 bytes";
    EXPECT_EQ(faultOf("b\n" + longest + "a"), fault);
    EXPECT_EQ(faultOf("b\n" + longest + longest + '\n'), fault);
}

TEST_F(LineReaderTest, RefusesWhatIsNoText) {
    EXPECT_EQ(faultOf(""), "f: found an empty file, allowed: rows of numbers");
    const std::string utf16("\xFF\xFEt\0,\0x\0", 8);
    EXPECT_EQ(faultOf(utf16), "f: found binary data, allowed: a WAV file, or text in UTF-8");
}

}  // namespace
}  // namespace Rotavue::Workbench
