#include "tests/cli/command_test.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdio>
#include <numbers>

namespace Rotavue::Cli {

namespace {

using Json = nlohmann::json;

/// The rotor's pulse begins halfway between the sample before a turn and the turn's first one, half
/// of 7.2 degrees early: x = 30 cos lags by 3.6 degrees, y = 20 sin by 93.6. Its largest sample of
/// y is 20 sin 86.4 degrees = 19.96.
class AnalyzeTest : public CommandTest {
protected:
    AnalyzeTest() { writeRotor("rotor.csv"); }

    Json analyzed(std::vector<std::string> options, const std::string& file = "rotor.csv") {
        options.insert(options.begin(), {"analyze", file, "--json"});
        const ProcessEnd end = rotavue(options);
        EXPECT_EQ(end.status, 0) << end.error;
        return Json::parse(end.out);
    }

    /// A recording without keyphasor of 500 samples at 1 kHz: the same constants plus 10 in x.
    void writeBare(const std::string& name) {
        std::string text = "t,x,y\n";
        for (int i = 0; i < 500; ++i) {
            char line[80];
            std::snprintf(line, sizeof line, "%.3f,%.4f,%.4f\n", i / 1000.0,
                          10.0 + 5.0 * std::cos(i * 0.125663706), 5.0 * std::sin(i * 0.125663706));
            text += line;
        }
        write(name, text);
    }
};

TEST_F(AnalyzeTest, TellsSpeedOrdersAndGapInLines) {
    const ProcessEnd end = rotavue({"analyze", "rotor.csv"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(
        end.out,
        "file         rotor.csv\n"
        "probes       X 90\u00b0 R, Y 0\u00b0\n"
        "span         0 to 2 s\n"
        "speed        1200.0 rpm\n"
        "gap          X 0.00 um, Y 0.00 um; centre 0.00 um right, 0.00 um up\n"
        "direct       X 60.00 um pp, Y 39.92 um pp, Smax 30.00 um\n"
        "orders       lag: degrees from the pulse to the next positive peak\n"
        "             tilt: of the long axis, degrees clockwise from the top\n"
        "\n"
        "order  X um peak  X lag  Y um peak  Y lag   half axes um  ratio  tilt  precession\n"
        "1X         30.00    3.6      20.00   93.6  30.00 x 20.00   0.67  90.0     unknown\n"
        "2X          0.00      -       0.00      -    0.00 x 0.00      -     -           -\n");
}

TEST_F(AnalyzeTest, TellsTheSameToPrograms) {
    const Json facts = analyzed({});
    const Json& window = facts.at("windows").at(0);
    EXPECT_EQ(facts.at("windows").size(), 1U);
    EXPECT_NEAR(window.at("speed").get<double>(), 1200.0, 1e-6);
    const Json& first = window.at("orders").at(0);
    EXPECT_EQ(first.at("order"), 1.0);
    EXPECT_NEAR(first.at("x").at("amplitude").get<double>(), 30.0, 1e-3);
    EXPECT_NEAR(first.at("x").at("lag").get<double>(), 3.6, 1e-3);
    EXPECT_NEAR(first.at("y").at("lag").get<double>(), 93.6, 1e-3);
    EXPECT_NEAR(first.at("ellipse").at("ratio").get<double>(), 20.0 / 30.0, 1e-4);
    EXPECT_NEAR(first.at("ellipse").at("tilt").get<double>(), 90.0, 1e-3);
    EXPECT_TRUE(window.at("shaft").is_null());
    EXPECT_EQ(facts.at("units").at("amplitude"), "um peak");
    EXPECT_EQ(facts.at("units").at("speed"), "rpm");
}

TEST_F(AnalyzeTest, SpeedThatChangesIsToldFromEndToEnd) {
    // The angle of a shaft that gains 20 turns a second in each of two seconds, 10 t^2 turns.
    std::string text = "t,x,y,phi\n";
    for (int i = 0; i < 2000; ++i) {
        char line[80];
        const double time = i / 1000.0;
        std::snprintf(line, sizeof line, "%.3f,%.3f,0,%.4f\n", time,
                      std::cos(2.0 * std::numbers::pi * 10.0 * time * time),
                      360.0 * std::fmod(10.0 * time * time, 1.0));
        text += line;
    }
    write("ramp.csv", text);
    const ProcessEnd end = rotavue({"analyze", "ramp.csv", "--span", "1-2"});
    // Turn 10 begins at 1 s, at 20 turns a second; of turn 40 the last sample misses a part, and
    // turn 39 begins at sqrt(3.9) = 1.97484 s, at 39.4968 turns a second: 29 turns in between.
    EXPECT_NE(end.out.find("\nspeed        1784.9 rpm, from 1200.0 to 2369.8\n"), std::string::npos)
        << end.out;
    EXPECT_NE(end.out.find("note         the speed runs from 1200 to 2370 rpm"), std::string::npos)
        << end.out;
}

TEST_F(AnalyzeTest, RotationTellsThePrecession) {
    // Right 30 cos, up 20 sin: counter-clockwise.
    const auto precession = [this](const char* rotation) {
        const Json facts = analyzed({"--rotation", rotation});
        return facts.at("windows").at(0).at("orders").at(0).at("ellipse").at("precession");
    };
    EXPECT_EQ(precession("CCW"), "forward");
    EXPECT_EQ(precession("CW"), "backward");
    const std::string notes = analyzed({"--rotation", "CW"}).at("notes").dump();
    EXPECT_NE(notes.find("1X runs against the rotation"), std::string::npos) << notes;
}

TEST_F(AnalyzeTest, WindowsFollowOneAnother) {
    const Json facts = analyzed({"--window", "0.6"});
    // 2 s hold three of them, and a rest of 0.2 s, which is less than half of one.
    ASSERT_EQ(facts.at("windows").size(), 3U);
    EXPECT_NEAR(facts.at("windows").at(2).at("from").get<double>(), 1.2, 1e-12);
    EXPECT_NEAR(facts.at("windows").at(2).at("to").get<double>(), 1.8, 1e-12);
    const Json rest = analyzed({"--window", "0.75"}).at("windows");
    ASSERT_EQ(rest.size(), 3U);
    EXPECT_EQ(rest.at(2).at("to"), 2.0);
}

TEST_F(AnalyzeTest, WindowsAreLinesOfATable) {
    const std::string out = rotavue({"analyze", "rotor.csv", "--window", "1", "--orders", "1"}).out;
    EXPECT_NE(out.find("from s  to s     rpm  X gap um  Y gap um  X pp um  Y pp um  X 1X um peak  "
                       "lag  Y 1X um peak   lag\n"),
              std::string::npos)
        << out;
    EXPECT_NE(out.find("\n1          2  1200.0 "), std::string::npos) << out;
}

TEST_F(AnalyzeTest, SpanCutsTheRecording) {
    const Json window = analyzed({"--span", "0.5-1"}).at("windows").at(0);
    EXPECT_EQ(window.at("from"), 0.5);
    EXPECT_EQ(window.at("to"), 1.0);
    const ProcessEnd behind = rotavue({"analyze", "rotor.csv", "--span", "3-4"});
    EXPECT_EQ(behind.status, 1);
    EXPECT_EQ(behind.error,
              "rotavue analyze: rotor.csv: nothing lies behind 3 s, it is 2 s long\n");
}

TEST_F(AnalyzeTest, AmplitudesArePeakRmsOrPeakPeak) {
    const auto amplitude = [this](const char* scale) {
        const Json facts = analyzed({"--amplitude", scale});
        const Json& first = facts.at("windows").at(0).at("orders").at(0);
        return first.at("x").at("amplitude").get<double>();
    };
    EXPECT_NEAR(amplitude("peak"), 30.0, 1e-3);
    EXPECT_NEAR(amplitude("rms"), 30.0 / std::sqrt(2.0), 1e-3);
    EXPECT_NEAR(amplitude("pp"), 60.0, 1e-3);
}

TEST_F(AnalyzeTest, SaysWhatIsMissingWithoutAKeyphasor) {
    writeBare("bare.csv");
    const Json facts = analyzed({}, "bare.csv");
    const Json& window = facts.at("windows").at(0);
    EXPECT_TRUE(window.at("speed").is_null());
    EXPECT_TRUE(window.at("orders").empty());
    // Ten cycles of 50 samples leave the 10 alone.
    EXPECT_NEAR(window.at("gap").at("x").get<double>(), 10.0, 1e-4);
    EXPECT_NEAR(window.at("position").at("right").get<double>(), 10.0, 1e-4);
    EXPECT_EQ(facts.at("notes").at(0),
              "the harmonic analysis needs the shaft's angle, and the recording has no keyphasor");
}

TEST_F(AnalyzeTest, SaysThatAStandingShaftHasNoOrders) {
    write("still.csv", "t,x,y,rpm\n0,1,2,0\n1,1,3,0\n2,2,2,0\n3,1,2,0\n");
    const ProcessEnd end = rotavue({"analyze", "still.csv"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_NE(end.out.find("speed        not known\n"), std::string::npos) << end.out;
    EXPECT_NE(end.out.find("note         the harmonic analysis needs a whole turn of the shaft, "
                           "and it stands still\n"),
              std::string::npos)
        << end.out;
}

// 10 to the right of the middle of a clearance of 40: half of the way, a quarter ahead of down.
TEST_F(AnalyzeTest, RestTellsThePositionInTheBearing) {
    writeBare("bare.csv");
    const std::vector<std::string> options{
        "--clearance-width", "40", "--rotation", "CCW", "--rest", "center"};
    const Json shaft = analyzed(options, "bare.csv").at("windows").at(0).at("shaft");
    EXPECT_NEAR(shaft.at("eccentricity").get<double>(), 0.5, 1e-4);
    EXPECT_NEAR(shaft.at("attitude").get<double>(), 90.0, 1e-2);
    std::vector<std::string> lines{"analyze", "bare.csv"};
    lines.insert(lines.end(), options.begin(), options.end());
    EXPECT_NE(
        rotavue(lines).out.find("\nposition     e/c 0.50, attitude 90.0 degrees from straight "
                                "down in the direction of rotation\n"),
        std::string::npos);
}

// At rest all the time: at the bottom, straight below the middle.
TEST_F(AnalyzeTest, RestSpanIsWhereTheShaftLies) {
    const std::vector<std::string> arguments{
        "analyze", "rotor.csv", "--clearance-width", "200",  "--rotation", "CW", "--window", "1",
        "--rest",  "bottom",    "--rest-span",       "0-0.5"};
    const std::string out = rotavue(arguments).out;
    EXPECT_NE(out.find("Y pp um   e/c  attitude  X 1X"), std::string::npos) << out;
    EXPECT_NE(out.find("39.92  1.00       0.0  "), std::string::npos) << out;
}

TEST_F(AnalyzeTest, PositionThatCannotBeToldIsRefused) {
    const ProcessEnd bare = rotavue({"analyze", "rotor.csv", "--rest", "bottom"});
    EXPECT_EQ(bare.status, 1);
    EXPECT_EQ(bare.error,
              "rotavue analyze: rotor.csv: no clearance is known: --clearance-width tells it\n");
    const ProcessEnd ac = rotavue({"analyze", "rotor.csv", "--rest", "center", "--clearance-width",
                                   "200", "--coupling", "AC"});
    EXPECT_EQ(ac.status, 1);
    EXPECT_EQ(ac.error,
              "rotavue analyze: rotor.csv: the shaft centre needs the mean of the gaps, which AC "
              "coupling takes away\n");
}

TEST_F(AnalyzeTest, AcCouplingHasNoGap) {
    EXPECT_TRUE(analyzed({"--coupling", "AC"}).at("windows").at(0).at("gap").is_null());
}

TEST_F(AnalyzeTest, WrongValuesAreToldWithWhatIsAllowed) {
    struct Case {
        std::vector<std::string> options;
        std::string line;
    };
    const std::string orders = "up to 64 orders such as 1+2+0.43, each once, from 0.01 to 1000";
    const Case cases[] = {
        {{"--orders", "1+one"}, "--orders: found \"1+one\", allowed: " + orders},
        {{"--orders", "2+2"}, "--orders: found \"2+2\", allowed: " + orders},
        {{"--orders", ""}, "--orders: found \"\", allowed: " + orders},
        {{"--window", "0"}, "--window: found \"0\", allowed: a number from 0.001 to 1e+09 s"},
        {{"--span", "2"},
         "--span: found \"2\", allowed: FROM-TO in seconds after the first sample, such as 0-1.5"},
        {{"--span", "2-1"},
         "--span: found \"2-1\", allowed: FROM-TO in seconds after the first sample, such as "
         "0-1.5"},
        {{"--amplitude", "mean"}, "--amplitude: found \"mean\", allowed: peak, rms or pp"},
        {{"--rest", "top"}, "--rest: found \"top\", allowed: center or bottom"},
        {{"--save-reference", "orbit.csv"},
         "--save-reference: found \"orbit.csv\", allowed: a name that ends with .json"},
    };
    for (const Case& c : cases) {
        std::vector<std::string> arguments{"analyze", "rotor.csv"};
        arguments.insert(arguments.end(), c.options.begin(), c.options.end());
        const ProcessEnd end = rotavue(arguments);
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.out, "");
        EXPECT_EQ(end.error, "rotavue analyze: " + c.line + moreHelp("rotavue analyze"));
    }
}

TEST_F(AnalyzeTest, OrdersThatTheTurnsCannotTellApartAreNoted) {
    // 40 turns tell orders apart from 0.025 on.
    const Json facts = analyzed({"--orders", "1+1.01"});
    EXPECT_TRUE(facts.at("windows").at(0).at("orders").empty());
    EXPECT_EQ(facts.at("notes").size(), 1U);
}

TEST_F(AnalyzeTest, SavedReferenceIsReplacedWithForceAlone) {
    const std::vector<std::string> save{"analyze", "rotor.csv", "--save-reference", "r.json"};
    EXPECT_EQ(rotavue(save).status, 0);
    const Json reference = Json::parse(read("r.json"));
    EXPECT_EQ(reference.at("x").size(), 256U);
    // The pulse is 3.6 degrees before the turn's first sample.
    EXPECT_NEAR(reference.at("x").at(0).get<double>(),
                30.0 * std::cos(3.6 * std::numbers::pi / 180.0), 0.01);
    const ProcessEnd again = rotavue(save);
    EXPECT_EQ(again.status, 1);
    EXPECT_EQ(again.error, "rotavue analyze: r.json: the file is there; --force replaces it\n");
    std::vector<std::string> forced = save;
    forced.push_back("--force");
    EXPECT_EQ(rotavue(forced).status, 0);
}

TEST_F(AnalyzeTest, SameCommandGivesTheSameBytes) {
    for (const char* option : {"--json", "--window=0.5"}) {
        const std::vector<std::string> arguments{"analyze", "rotor.csv", option};
        EXPECT_EQ(rotavue(arguments).out, rotavue(arguments).out);
    }
}

}  // namespace

}  // namespace Rotavue::Cli
