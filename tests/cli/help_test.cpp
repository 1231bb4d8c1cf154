#include "tests/cli/command_test.h"

#include <regex>
#include <set>
#include <sstream>

namespace Rotavue::Cli {

namespace {

const std::vector<std::string> Commands{"render", "info", "analyze",  "copy",
                                        "setup",  "play", "register", "unregister"};

class HelpTest : public CommandTest {};

TEST_F(HelpTest, BeginsWithWhatTheCommandDoesAndThenExamples) {
    for (const std::string& command : Commands) {
        const ProcessEnd end = rotavue({command, "--help"});
        EXPECT_EQ(end.status, 0) << command;
        EXPECT_EQ(end.error, "") << command;
        const std::size_t examples = end.out.find("\n\nExamples:\n  rotavue " + command + ' ');
        EXPECT_EQ(examples, end.out.find('\n')) << end.out;
        EXPECT_LT(examples, end.out.find("Usage: rotavue " + command)) << end.out;
    }
}

TEST_F(HelpTest, DocumentsEachOptionOnce) {
    const std::regex option("^  (?:-\\w,)?(--[a-z-]+)");
    for (const std::string& command : Commands) {
        std::set<std::string> seen;
        std::istringstream lines(rotavue({command, "--help"}).out);
        std::smatch match;
        for (std::string line; std::getline(lines, line);) {
            if (!std::regex_search(line, match, option)) continue;
            EXPECT_TRUE(seen.insert(match[1]).second) << command << ' ' << match[1];
        }
        EXPECT_TRUE(seen.contains("--help")) << command;
    }
}

TEST_F(HelpTest, SpellsOptionsAsTheyAreTyped) {
    const std::string help = rotavue({"render", "--help"}).out;
    EXPECT_NE(help.find("  --clearance,--no-clearance  "), std::string::npos) << help;
    EXPECT_EQ(help.find('{'), std::string::npos) << help;
}

TEST_F(HelpTest, NamesEveryCommandInOneLine) {
    const std::string help = rotavue({"--help"}).out;
    for (const std::string& command : Commands)
        EXPECT_TRUE(std::regex_search(help, std::regex("\n  " + command + " +[A-Z][^\n]*\n")))
            << command << '\n'
            << help;
}

TEST_F(HelpTest, IsWhatTheBareProgramSays) {
    const ProcessEnd bare = rotavue({});
    EXPECT_EQ(bare.status, 0);
    EXPECT_EQ(bare.out, rotavue({"--help"}).out);
}

TEST_F(HelpTest, VersionIsOneLineForPrograms) {
    const ProcessEnd end = rotavue({"--version"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.out, "rotavue 2.1.8\n");
}

}  // namespace

}  // namespace Rotavue::Cli
