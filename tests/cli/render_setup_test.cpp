#include "cli/setup_texts.h"
#include "tests/cli/command_test.h"

namespace Rotavue::Cli {

namespace {

using Names = std::vector<std::string>;

class RenderSetupTest : public CommandTest {
protected:
    RenderSetupTest() { writeRotor("rotor.csv"); }

    void makeSetup(Names changes) {
        changes.insert(changes.begin(), {"setup", "new", "plot.xml", "--force"});
        EXPECT_EQ(rotavue(changes).error, "");
    }

    /// The picture that these options make; SVG, which tells every line.
    std::string picture(const Names& options) {
        Names arguments{"render", "rotor.csv", "-o", "-", "--format", "svg", "-q"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const ProcessEnd end = rotavue(arguments);
        EXPECT_EQ(end.status, 0) << end.error;
        return end.out;
    }
};

TEST_F(RenderSetupTest, PlotIsThatOfTheSetup) {
    makeSetup({"graphType=1", "tickCount=3", "revolutions=2", "useManualMagnitudeLimits=True",
               "minXValue=-40", "maxXValue=40", "minYValue=-40", "maxYValue=40"});
    EXPECT_TRUE(picture({"--setup", "plot.xml"}) ==
                picture({"--circle", "--ticks", "3", "--revolutions", "2", "--limits", "40"}));
}

TEST_F(RenderSetupTest, AutomaticScaleIsThePlugInsOwn) {
    makeSetup({"tickCount=5", "historyType=1", "displayTime=70"});
    EXPECT_TRUE(picture({"--setup", "plot.xml"}) ==
                picture({"--limits", "auto", "--ticks", "5", "--time", "70"}));
}

TEST_F(RenderSetupTest, OptionsGoBeforeTheSetup) {
    makeSetup({"graphType=1", "tickCount=3", "revolutions=2", "drawClearance=True",
               "useManualMagnitudeLimits=True", "maxXValue=500"});
    const Names options{"--grid", "--ticks",  "5",     "--revolutions",
                        "4",      "--limits", "round", "--no-clearance"};
    Names both{"--setup", "plot.xml"};
    both.insert(both.end(), options.begin(), options.end());
    EXPECT_TRUE(picture(both) == picture(options));
}

TEST_F(RenderSetupTest, ClearanceHasTheColourOfTheSetup) {
    write("rotor.machine.json", R"({"clearance": {"width": 60, "height": 60}})");
    makeSetup({"drawClearance=True", "clearanceColor=1193046"});  // 0x123456
    EXPECT_NE(picture({"--setup", "plot.xml"}).find("#123456"), std::string::npos);
    EXPECT_EQ(picture({"--setup", "plot.xml", "--no-clearance"}).find("#123456"),
              std::string::npos);
}

// A key that is left out of a setup is a limit of 1 each way.
TEST_F(RenderSetupTest, OneScaleTellsLimitsThatReachEquallyFar) {
    EXPECT_TRUE(limitsAreAlike({}));
    EXPECT_TRUE(limitsAreAlike({{L"minXValue", L"-1.0"}, {L"maxYValue", L"1.0"}}));
    for (const wchar_t* key : {L"minXValue", L"maxXValue", L"minYValue", L"maxYValue"})
        EXPECT_FALSE(limitsAreAlike({{key, L"2.0"}})) << key;
}

TEST_F(RenderSetupTest, RecordingWithoutKeyphasorIsShownByTheTimeOfTheSetup) {
    write("bare.csv", "t,x,y\n0,1,2\n1,2,3\n2,1,2\n");
    makeSetup({"revolutions=2", "displayTime=2000"});
    const ProcessEnd end =
        rotavue({"render", "bare.csv", "-o", "bare.svg", "-q", "--setup", "plot.xml"});
    EXPECT_EQ(end.status, 0) << end.error;
    ASSERT_EQ(rotavue({"render", "bare.csv", "-o", "time.svg", "-q", "--time", "2000", "--limits",
                       "auto", "--ticks", "5"})
                  .status,
              0);
    EXPECT_TRUE(read("bare.svg") == read("time.svg"));
}

TEST_F(RenderSetupTest, FaultOfTheSetupLeavesNoPicture) {
    write("plot.xml", "<setup>\n<tickCount>many</tickCount>\n</setup>\n");
    const ProcessEnd end =
        rotavue({"render", "rotor.csv", "-o", "rotor.svg", "--setup", "plot.xml"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "rotavue render: plot.xml:2: found \"many\" for \"tickCount\", allowed: a whole "
              "number from 0 to 20\n");
    EXPECT_EQ(names(), (Names{"plot.xml", "rotor.csv"}));
}

}  // namespace

}  // namespace Rotavue::Cli
