#include "workbench/setup/setup_file.h"

#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

class SetupFileTest : public ScratchFolder {
protected:
    std::string faultOf(std::string_view text) const {
        return messageOf([&] { readSetupFile(write("f", text)); });
    }
};

TEST_F(SetupFileTest, HasAnElementForEachKey) {
    EXPECT_EQ(setupXml({{"revolutions", "8"}, {"singleAxis", "True"}}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<setup>\n"
              "    <revolutions>8</revolutions>\n"
              "    <singleAxis>True</singleAxis>\n"
              "</setup>\n");
}

TEST_F(SetupFileTest, GivesBackWhatWasWritten) {
    const SetupEntries read =
        readSetupFile(write("f", setupXml({{"b", "1 < 2 & 3 > 2"}, {"a", ""}, {"b", "\u00FC"}})));
    ASSERT_EQ(read.size(), 3U);
    EXPECT_EQ(read[0].key, "b");
    EXPECT_EQ(read[0].text, "1 < 2 & 3 > 2");
    EXPECT_EQ(read[1].text, "");
    EXPECT_EQ(read[2].text, "\u00FC");
    EXPECT_EQ(read[2].line, 5U);  // declaration, <setup>, b, a, b
}

TEST_F(SetupFileTest, PassesOverCommentsAndBlanksAroundTexts) {
    const SetupEntries read = readSetupFile(
        write("f",
              "\n<!-- ours -->\n<setup>\n <!-- x --> <a>\n  5 \n</a><b><![CDATA[6]]></b>\n"
              "</setup>\n<!-- end -->\n"));
    ASSERT_EQ(read.size(), 2U);
    EXPECT_EQ(read[0].text, "5");
    EXPECT_EQ(read[1].text, "6");
}

TEST_F(SetupFileTest, KnowsTheLineOfEachOfManyEntries) {
    // To count from the start of the file for each one would take several minutes.
    constexpr std::size_t Count = 800'000;
    std::string text = "<setup>";
    for (std::size_t i = 0; i < Count; ++i)
        text += i % 4 == 0 ? "\n<a/>" : "<a/>";
    const SetupEntries read = readSetupFile(write("f", text + "</setup>"));
    ASSERT_EQ(read.size(), Count);
    std::size_t missed = 0;
    for (std::size_t i = 0; i < Count; ++i)
        if (read[i].line != 2 + i / 4) ++missed;
    EXPECT_EQ(missed, 0U);
}

TEST_F(SetupFileTest, NamesTheLineOfWhatIsBuiltOtherwise) {
    struct Case {
        const char* text;
        const char* fault;
    };
    const Case cases[] = {
        {"", "f: found an empty file, allowed: a setup as XML"},
        {"\n \n", "f: found no element, allowed: one element <setup>"},
        {"<a/>", "f:1: found <a>, allowed: one element <setup>"},
        {"<setup/>\n<setup/>", "f:2: found <setup>, allowed: one element <setup>"},
        {"<setup/>\nmore", "f:2: found \"more\", allowed: one element <setup>"},
        {"<setup>\n5</setup>", "f:2: found \"5\", allowed: elements named after settings"},
        {"<setup>\n<a><b/></a></setup>", "f:2: found <b>, allowed: text alone in a setting"},
        {"<setup>\n\n<a x='1'/></setup>", "f:3: found <a>, allowed: <a> without attributes"},
        {"<setup v='1'/>", "f:1: found <setup>, allowed: <setup> without attributes"},
        {"<setup>\n<a>5</a>\n",
         "f:2: found no XML (Start-end tags mismatch), allowed: a setup as XML"},
        {"<setup>\n<a>5</a",
         "f:2: found no XML (Error parsing end element tag), allowed: a setup as XML"},
        {"x,y\n1,2\n", "f:1: found \"x,y?1,2\", allowed: one element <setup>"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(faultOf(c.text), c.fault) << c.text;
    EXPECT_EQ(faultOf(std::string_view("<setup>\0</setup>", 16)),
              "f: found binary data, allowed: a setup as XML");
}

TEST_F(SetupFileTest, RefusesWhatIsNoFile) {
    EXPECT_EQ(messageOf([&] { readSetupFile(at("none")); }),
              "none: found no such file, allowed: a file that can be read");
    EXPECT_EQ(
        messageOf([&] { readSetupFile(at("")); }).find("found a directory") != std::string::npos,
        true);
}

TEST_F(SetupFileTest, RefusesAFileBeyondItsSize) {
    const std::string file = "<setup><a>" + std::string(4U << 20U, '5') + "</a></setup>";
    EXPECT_EQ(faultOf(file), "f: found more than 4194304 bytes, allowed: at most 4194304 bytes");
}

TEST_F(SetupFileTest, TakesAMegabyteOfTextAndADeepFileWithoutHarm) {
    const std::string text(1'000'000, '7');
    EXPECT_EQ(readSetupFile(write("f", setupXml({{"a", text}}))).front().text, text);
    std::string deep = "<setup>";
    for (int i = 0; i < 500'000; ++i)
        deep += "<a>";
    EXPECT_NE(faultOf(deep).find("found no XML"), std::string::npos);
    for (int i = 0; i < 500'000; ++i)
        deep += "</a>";
    EXPECT_NE(faultOf(deep + "</setup>").find("found"), std::string::npos);
}

}  // namespace
}  // namespace Rotavue::Workbench
