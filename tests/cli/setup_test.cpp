#include "tests/cli/command_test.h"

#include <unistd.h>

#include <csignal>
#include <cstring>

namespace Rotavue::Cli {

namespace {

using Names = std::vector<std::string>;

/// What a control in its constructed state writes, in the order of its settings.
constexpr const char* MadeState =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<setup>\n"
    "    <useManualMagnitudeLimits>False</useManualMagnitudeLimits>\n"
    "    <drawClearance>False</drawClearance>\n"
    "    <clearanceColor>16750848</clearanceColor>\n"  // 0xFF9900
    "    <displayTime>100.000000000000000</displayTime>\n"
    "    <revolutions>1</revolutions>\n"
    "    <tickCount>5</tickCount>\n"
    "    <singleAxis>True</singleAxis>\n"
    "    <displayType>0</displayType>\n"
    "    <graphType>0</graphType>\n"
    "    <historyType>0</historyType>\n"
    "    <autoScaleType>0</autoScaleType>\n"
    "    <showOnlyLastPosition>False</showOnlyLastPosition>\n"
    "    <minXValue>-1.000000000000000</minXValue>\n"
    "    <maxXValue>1.000000000000000</maxXValue>\n"
    "    <minYValue>-1.000000000000000</minYValue>\n"
    "    <maxYValue>1.000000000000000</maxYValue>\n"
    "</setup>\n";

/// Bytes that a file may have, none of them enough for that.
const std::size_t TooSmall[] = {0, 1, 100, std::strlen(MadeState) - 1};

class SetupTest : public CommandTest {
protected:
    /// The file with the one text in the place of another.
    std::string replaced(std::string text, const std::string& from, const std::string& to) const {
        const std::size_t place = text.find(from);
        EXPECT_NE(place, std::string::npos) << from;
        return text.replace(place, from.size(), to);
    }
};

TEST_F(SetupTest, NewWritesWhatANewControlHas) {
    const ProcessEnd end = rotavue({"setup", "new", "plot.xml"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(end.out + end.error, "");
    EXPECT_EQ(read("plot.xml"), MadeState);
    EXPECT_EQ(rotavue({"setup", "new", "-"}).out, MadeState);
}

TEST_F(SetupTest, NewReplacesAFileWithForceAlone) {
    write("plot.xml", "old");
    const ProcessEnd end = rotavue({"setup", "new", "plot.xml"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "rotavue setup new: plot.xml: the file is there; --force replaces it\n");
    EXPECT_EQ(read("plot.xml"), "old");
    EXPECT_EQ(rotavue({"setup", "new", "plot.xml", "--force", "tickCount=3"}).status, 0);
    EXPECT_EQ(read("plot.xml"), replaced(MadeState, "<tickCount>5", "<tickCount>3"));
}

TEST_F(SetupTest, SetChangesTheNamedSettingsAlone) {
    write("plot.xml", MadeState);
    // A number with a comma, as it stands in many an engineer's notes.
    const ProcessEnd end = rotavue(
        {"setup", "set", "revolutions=8", "displayTime=2,5", "singleAxis=false", "plot.xml"});
    EXPECT_EQ(end.status, 0) << end.error;
    std::string expected = replaced(MadeState, "<revolutions>1", "<revolutions>8");
    expected = replaced(expected, "100.000000000000000", "2.500000000000000");
    expected = replaced(expected, "<singleAxis>True", "<singleAxis>False");
    EXPECT_EQ(read("plot.xml"), expected);
    EXPECT_EQ(names(), Names{"plot.xml"});
}

// A control that changes to the circle squares the limits that it holds; stored limits come after
// that and stay as they are.
TEST_F(SetupTest, CircleKeepsTheLimitsOfTheFile) {
    write("plot.xml", MadeState);
    EXPECT_EQ(rotavue({"setup", "set", "plot.xml", "graphType=1", "minXValue=-3"}).status, 0);
    const std::string expected = replaced(replaced(MadeState, "<graphType>0", "<graphType>1"),
                                          "<minXValue>-1", "<minXValue>-3");
    EXPECT_EQ(read("plot.xml"), expected);
}

TEST_F(SetupTest, ShowListsWhatAControlHoldsAfterLoading) {
    write("plot.xml", "<setup><displayTime>2,5</displayTime><graphType>1</graphType></setup>");
    const ProcessEnd end = rotavue({"setup", "show", "plot.xml"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(end.out,
              "useManualMagnitudeLimits=False\ndrawClearance=False\n"
              "clearanceColor=0\n"  // what a missing key reads as, not 0xFF9900
              "displayTime=2.500000000000000\nrevolutions=1\ntickCount=5\nsingleAxis=True\n"
              "displayType=0\ngraphType=1\nhistoryType=0\nautoScaleType=0\n"
              "showOnlyLastPosition=False\n"
              "minXValue=-1.000000000000000\nmaxXValue=1.000000000000000\n"
              "minYValue=-1.000000000000000\nmaxYValue=1.000000000000000\n");
}

TEST_F(SetupTest, CheckSaysWhatAMissingKeyMeans) {
    write("plot.xml", "<setup><graphType>1</graphType></setup>");
    const ProcessEnd end = rotavue({"setup", "check", "plot.xml"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.out, "");
    EXPECT_EQ(end.error,
              "plot.xml: without \"clearanceColor\" a control takes 0, where a new one has "
              "16750848\n"
              "plot.xml: without \"displayTime\" a control takes 0.000000000000000, where a new "
              "one has 100.000000000000000\n"
              "plot.xml: a control takes it as it stands\n");
    write("full.xml", MadeState);
    EXPECT_EQ(rotavue({"setup", "check", "full.xml"}).error,
              "full.xml: a control takes it as it stands\n");
}

TEST_F(SetupTest, FaultsOfAFileAreToldInOneLine) {
    struct Case {
        std::string text;
        std::string fault;
    };
    const Case cases[] = {
        {"<setup>\n<tickCount>abc</tickCount></setup>",
         ":2: found \"abc\" for \"tickCount\", allowed: a whole number from 0 to 20"},
        {"<setup>\n\n<tickCount>21</tickCount></setup>",
         ":3: found \"21\" for \"tickCount\", allowed: a whole number from 0 to 20"},
        {"<setup>\n<revolutions>99999999999999999999</revolutions></setup>",
         ":2: found \"99999999999999999999\" for \"revolutions\", allowed: a whole number from 1 "
         "to 25"},
        {"<setup>\n<graphType>7</graphType></setup>",
         ":2: found \"7\" for \"graphType\", allowed: 0 (Grid) or 1 (Circle)"},
        {"<setup>\n<tickCount>5</tickCount>\n<tickCount>5</tickCount></setup>",
         ":3: found \"tickCount\" a second time, after line 2, allowed: each key once"},
        {"<setup>\n<tickcount>5</tickcount></setup>",
         ":2: found no setting \"tickcount\" (the nearest is \"tickCount\"), allowed: the keys "
         "that \"rotavue setup new\" writes"},
        {std::string(MadeState).substr(0, 200),
         ":6: found no XML (Start-end tags mismatch), allowed: a setup as XML"},
        {"<setup><displayTime>" + std::string(1'000'000, '7') + "</displayTime></setup>",
         ":1: found \"" + std::string(40, '7') +
             "...\" for \"displayTime\", allowed: a number from 1 to 10000"},
        // Less than an f64 can hold with all its digits: the text is a number, and no control
        // takes it.
        {"<setup><minXValue>1e-320</minXValue></setup>",
         ":1: found \"1e-320\" for \"minXValue\" (the plug-in failed at message 33: Value is out "
         "of range!), allowed: a number"},
        {"", ": found an empty file, allowed: a setup as XML"},
    };
    for (const Case& c : cases) {
        write("bad.xml", c.text);
        for (const Names& command :
             {Names{"check", "bad.xml"}, {"show", "bad.xml"}, {"set", "tickCount=3", "bad.xml"}}) {
            Names arguments{"setup"};
            arguments.insert(arguments.end(), command.begin(), command.end());
            const ProcessEnd end = rotavue(arguments);
            EXPECT_EQ(end.status, 1) << c.fault;
            EXPECT_EQ(end.out, "");
            EXPECT_EQ(end.error, "rotavue setup " + command.front() + ": bad.xml" + c.fault + '\n');
            EXPECT_EQ(read("bad.xml"), c.text);
        }
    }
}

TEST_F(SetupTest, WhatIsNoFileIsToldByName) {
    std::filesystem::create_directory(at("folder"));
    for (const auto& [name, found] :
         {std::pair{"none.xml", "no such file"}, {"folder", "a directory"}}) {
        const ProcessEnd end = rotavue({"setup", "check", name});
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.error, "rotavue setup check: " + std::string(name) + ": found " + found +
                                 ", allowed: a file that can be read\n");
    }
    EXPECT_EQ(rotavue({"setup", "new", "folder"}).error,
              "rotavue setup new: folder: is a folder\n");
}

TEST_F(SetupTest, WrongChangesAreWrongUse) {
    write("plot.xml", MadeState);
    struct Case {
        Names words;
        std::string fault;
    };
    const Case cases[] = {
        {{"plot.xml"}, "nothing to set: KEY=VALUE is missing"},
        {{"tickCount=1"}, "FILE is required"},
        {{"plot.xml", "other.xml", "tickCount=1"}, "one file at a time: plot.xml, other.xml"},
        {{"plot.xml", "tick=1"}, "found no setting \"tick\" (the nearest is \"tickCount\")"},
        {{"plot.xml", "tickCount=1", "tickCount=2"}, "tickCount is given twice"},
        {{"plot.xml", "tickCount=21"},
         "tickCount: found \"21\", allowed: a whole number from 0 to 20"},
        {{"plot.xml", "drawClearance="}, "drawClearance: found \"\", allowed: True or False"},
        {{"plot.xml", "displayTime=soon"},
         "displayTime: found \"soon\", allowed: a number from 1 to 10000"},
    };
    for (const Case& c : cases) {
        Names arguments{"setup", "set"};
        arguments.insert(arguments.end(), c.words.begin(), c.words.end());
        const ProcessEnd end = rotavue(arguments);
        EXPECT_EQ(end.status, 2) << c.fault;
        EXPECT_EQ(end.error, "rotavue setup set: " + c.fault + moreHelp("rotavue setup set"));
    }
    EXPECT_EQ(read("plot.xml"), MadeState);
    EXPECT_EQ(rotavue({"setup", "sets"}).error,
              "rotavue setup: there is no command \"sets\", did you mean set?" +
                  moreHelp("rotavue setup"));
    EXPECT_EQ(rotavue({"setup"}).status, 2);
}

TEST_F(SetupTest, FullDiskLeavesTheOldSetupAndNothingElse) {
    write("plot.xml", MadeState);
    for (const std::size_t room : TooSmall) {
        ProcessOrder set = order({"setup", "set", "tickCount=3", "plot.xml"});
        set.largestFile = room;
        const ProcessEnd end = runProcess(set);
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.error, "rotavue setup set: plot.xml: File too large\n");
        EXPECT_EQ(read("plot.xml"), MadeState);
        EXPECT_EQ(names(), Names{"plot.xml"});
    }
}

TEST_F(SetupTest, KillWhileWritingLeavesTheOldSetup) {
    write("plot.xml", MadeState);
    for (const std::size_t room : TooSmall) {
        ProcessOrder set = order({"setup", "set", "tickCount=3", "plot.xml"});
        set.largestFile = room;
        set.endAtLargest = true;
        EXPECT_EQ(runProcess(set).signal, SIGXFSZ);
        EXPECT_EQ(read("plot.xml"), MadeState);
    }
    EXPECT_EQ(rotavue({"setup", "set", "tickCount=3", "plot.xml"}).status, 0);
    EXPECT_EQ(read("plot.xml"), replaced(MadeState, "<tickCount>5", "<tickCount>3"));
}

TEST_F(SetupTest, KillAtAnyMomentLeavesAWholeSetup) {
    const std::string changed = replaced(MadeState, "<tickCount>5", "<tickCount>3");
    write("plot.xml", MadeState);
    for (int wait = 0; wait < 40; ++wait) {
        RunningProcess set(order({"setup", "set", "tickCount=3", "plot.xml"}));
        ::usleep(static_cast<unsigned>(wait) * 500);
        set.send(SIGKILL);
        set.end();
        const std::string text = read("plot.xml");
        EXPECT_TRUE(text == MadeState || text == changed) << text;
    }
}

TEST_F(SetupTest, LinkToASetupStaysALink) {
    std::filesystem::create_directory(at("kept"));
    write("kept/plot.xml", MadeState);
    std::filesystem::create_symlink("kept/plot.xml", at("plot.xml"));
    EXPECT_EQ(rotavue({"setup", "set", "tickCount=3", "plot.xml"}).status, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(at("plot.xml")));
    EXPECT_EQ(read("kept/plot.xml"), replaced(MadeState, "<tickCount>5", "<tickCount>3"));
}

TEST_F(SetupTest, ReadsAndWritesTheSameInAnotherLocale) {
    setVariable("LOCPATH", ROTAVUE_TEST_LOCALES);
    setVariable("LC_ALL", "de_DE.UTF-8");
    ASSERT_EQ(rotavue({"setup", "new", "plot.xml"}).status, 0);
    EXPECT_EQ(read("plot.xml"), MadeState);
}

}  // namespace

}  // namespace Rotavue::Cli
