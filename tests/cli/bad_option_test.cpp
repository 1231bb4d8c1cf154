#include "tests/cli/command_test.h"

namespace Rotavue::Cli {

namespace {

class BadOptionTest : public CommandTest {
protected:
    BadOptionTest() { writeRotor("rotor.csv"); }
};

TEST_F(BadOptionTest, UnknownWordsNameTheNearestKnownOne) {
    struct Case {
        std::vector<std::string> arguments;
        std::string command;
        std::string wrong;
    };
    const Case cases[] = {
        {{"rendr"}, "rotavue", "there is no command \"rendr\", did you mean render?"},
        {{"--verson"}, "rotavue", "there is no option \"--verson\", did you mean --version?"},
        {{"info", "rotor.csv", "--jsn"},
         "rotavue info",
         "there is no option \"--jsn\", did you mean --json?"},
        {{"render", "rotor.csv", "-o", "p.png", "--tick=5"},
         "rotavue render",
         "there is no option \"--tick\", did you mean --ticks?"},
    };
    for (const Case& c : cases) {
        const ProcessEnd end = rotavue(c.arguments);
        EXPECT_EQ(end.status, 2) << c.wrong;
        EXPECT_EQ(end.out, "");
        EXPECT_EQ(end.error, c.command + ": " + c.wrong + moreHelp(c.command));
    }
    EXPECT_EQ(names(), std::vector<std::string>{"rotor.csv"});
}

TEST_F(BadOptionTest, MissingArgumentsAreWrongUse) {
    const std::vector<std::vector<std::string>> cases{
        {"render"}, {"render", "rotor.csv"},   {"render", "rotor.csv", "-o"}, {"info"},
        {"play"},   {"render", "-o", "p.png"},
    };
    for (const auto& arguments : cases) {
        const ProcessEnd end = rotavue(arguments);
        EXPECT_EQ(end.status, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(end.out, "");
        EXPECT_EQ(std::count(end.error.begin(), end.error.end(), '\n'), 1) << end.error;
    }
}

TEST_F(BadOptionTest, ValuesAreNamedWithWhatIsAllowed) {
    struct Case {
        std::string option;
        std::string found;
        std::string allowed;
    };
    const Case cases[] = {
        {"--size", "0x600", "WIDTHxHEIGHT, each from 1 to 8192 pixels"},
        {"--size", "800", "WIDTHxHEIGHT, each from 1 to 8192 pixels"},
        {"--scale", "9", "a whole number from 1 to 8"},
        {"--text-height", "big", "a whole number from 1 to 200"},
        {"--revolutions", "26", "a whole number from 1 to 25"},
        {"--revolutions", "1.5", "a whole number from 1 to 25"},
        {"--time", "1,5", "a number from 1 to 10000 ms"},
        {"--time", "0.5", "a number from 1 to 10000 ms"},
        {"--at", "nan", "a number from 0 to 1e+09 s"},
        {"--color", "red", "six hexadecimal digits RRGGBB, such as 1F77B4"},
        {"--ticks", "21", "a whole number from 0 to 20"},
        {"--limits", "wide", "round, auto or a number from 1e-06 to 1e+12"},
        {"--format", "gif", "png, svg or pdf"},
        {"--rotation", "left", "\"CW\" or \"CCW\""},
        {"--rate", "0", "a number from 0.001 to 1e+09"},
    };
    for (const Case& c : cases) {
        const ProcessEnd end = rotavue({"render", "rotor.csv", "-o", "p.png", c.option, c.found});
        EXPECT_EQ(end.status, 2) << c.option;
        EXPECT_EQ(end.error, "rotavue render: " + c.option + ": found \"" + c.found +
                                 "\", allowed: " + c.allowed + moreHelp("rotavue render"));
    }
    EXPECT_EQ(names(), std::vector<std::string>{"rotor.csv"});
}

TEST_F(BadOptionTest, OptionsThatExcludeEachOtherAreWrongUse) {
    for (const auto& [one, other] : {std::pair{"--dark", "--light"}, {"--grid", "--circle"}}) {
        const ProcessEnd end = rotavue({"render", "rotor.csv", "-o", "p.png", one, other});
        EXPECT_EQ(end.status, 2) << end.error;
    }
    EXPECT_EQ(names(), std::vector<std::string>{"rotor.csv"});
}

TEST_F(BadOptionTest, PictureNeedsANameThatTellsItsFormat) {
    for (const char* name : {"p.gif", "p", ""}) {
        const ProcessEnd end = rotavue({"render", "rotor.csv", "-o", name});
        EXPECT_EQ(end.status, 2) << name;
        EXPECT_NE(end.error.find(".png, .svg or .pdf"), std::string::npos) << end.error;
    }
}

}  // namespace

}  // namespace Rotavue::Cli
