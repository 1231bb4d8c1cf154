#include "tests/cli/command_test.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdio>
#include <numbers>

namespace Rotavue::Cli {

namespace {

using Json = nlohmann::json;

/// The rotor has x 30 cos and y 20 sin of its angle, its run-out 10 cos and 5 sin: what is left is
/// 20 cos and 15 sin, with the lags of 3.6 and 93.6 degrees that the rotor's pulses give.
class CompensateTest : public CommandTest {
protected:
    CompensateTest() {
        writeRotor("rotor.csv");
        writeRunOut("slow.csv");
    }

    void writeRunOut(const std::string& name) const {
        std::string text = "t,x,y,kp\n";
        for (int i = 0; i < 2000; ++i) {
            const double angle = 2.0 * std::numbers::pi * i / 50;
            char line[80];
            std::snprintf(line, sizeof line, "%.3f,%.4f,%.4f,%d\n", i / 1000.0,
                          10.0 * std::cos(angle), 5.0 * std::sin(angle), i % 50 < 5 ? 5 : 0);
            text += line;
        }
        write(name, text);
    }

    Json analyzed(const std::vector<std::string>& options) {
        std::vector<std::string> arguments{"analyze", "rotor.csv", "--json"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const ProcessEnd end = rotavue(arguments);
        EXPECT_EQ(end.status, 0) << end.error;
        return Json::parse(end.out);
    }
};

TEST_F(CompensateTest, BothFormsLeaveTheMotionWithoutTheRunOut) {
    for (const char* form : {"vector", "waveform"}) {
        const Json facts = analyzed({"--compensate", form, "--slow-roll", "slow.csv"});
        const Json& first = facts["windows"][0]["orders"][0];
        EXPECT_NEAR(first["x"]["amplitude"].get<double>(), 20.0, 0.001) << form;
        EXPECT_NEAR(first["x"]["lag"].get<double>(), 3.6, 0.01) << form;
        EXPECT_NEAR(first["y"]["amplitude"].get<double>(), 15.0, 0.001) << form;
        EXPECT_NEAR(first["y"]["lag"].get<double>(), 93.6, 0.01) << form;
    }
}

TEST_F(CompensateTest, AnalyzeSaysThatItIsOnAndHow) {
    EXPECT_TRUE(analyzed({})["compensation"].is_null());
    EXPECT_EQ(analyzed({"--compensate", "vector", "--slow-roll", "slow.csv"})["compensation"],
              "1X, 2X vector");
    const std::string text =
        rotavue({"analyze", "rotor.csv", "--compensate", "waveform", "--slow-roll", "slow.csv"})
            .out;
    EXPECT_NE(text.find("\nrun-out      compensated: waveform\n"), std::string::npos) << text;
    EXPECT_EQ(rotavue({"analyze", "rotor.csv"}).out.find("run-out"), std::string::npos);
}

TEST_F(CompensateTest, AStretchOfTheRecordingItselfWillDo) {
    // All of the motion is run-out then, and nothing is left.
    const Json facts = analyzed({"--compensate", "vector", "--slow-roll-span", "0.2-0.8"});
    EXPECT_NEAR(facts["windows"][0]["peakPeak"]["x"].get<double>(), 0.0, 0.001);
    EXPECT_EQ(facts["notes"][0],
              "rotor.csv: run-out taken at 1200 rpm: above 1000 rpm the shaft's own motion is part "
              "of it");
}

TEST_F(CompensateTest, CopiedNumbersAreTheCompensatedOnes) {
    const ProcessEnd end = rotavue({"copy", "rotor.csv", "--revolutions", "1", "-q", "--compensate",
                                    "vector", "--slow-roll", "slow.csv"});
    EXPECT_EQ(end.status, 0) << end.error;
    // The newest sample is the last before a turn ends: 20 cos and 15 sin of -7.2 degrees.
    EXPECT_EQ(end.out.find("rotor (um)\r\nX\tY\r\n19.842\t-1.880\r\n"), 0U)
        << end.out.substr(0, 80);
}

TEST_F(CompensateTest, PictureOfARotorThatIsAllRunOutIsNotThatOfTheRotor) {
    const auto picture = [&](std::vector<std::string> more) {
        std::vector<std::string> arguments{"render",   "rotor.csv", "-o", "-",
                                           "--format", "svg",       "-q"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        const ProcessEnd end = rotavue(arguments);
        EXPECT_EQ(end.status, 0) << end.error;
        return end.out;
    };
    const std::string on = picture({"--compensate", "vector", "--slow-roll", "slow.csv"});
    EXPECT_NE(on, picture({}));
    EXPECT_NE(on, picture({"--compensate", "waveform", "--slow-roll", "slow.csv"}));
}

TEST_F(CompensateTest, FaultsAreOneLine) {
    write("bare.csv", "t,x,y\n0,1,2\n0.1,1,3\n0.2,2,2\n");
    struct Case {
        std::vector<std::string> arguments;
        int status;
        std::string line;
    };
    const Case cases[] = {
        {{"rotor.csv", "--compensate", "vector"},
         2,
         "--compensate needs --slow-roll with a recording of slow roll, or --slow-roll-span with "
         "the seconds of it" +
             moreHelp("rotavue analyze")},
        {{"rotor.csv", "--compensate", "both", "--slow-roll", "slow.csv"},
         2,
         "--compensate: found \"both\", allowed: vector or waveform" + moreHelp("rotavue analyze")},
        {{"rotor.csv", "--compensate", "vector", "--slow-roll", "bare.csv"},
         1,
         "bare.csv: the run-out needs the shaft's angle, and the recording has no keyphasor\n"},
        {{"bare.csv", "--compensate", "vector", "--slow-roll", "slow.csv"},
         1,
         "bare.csv: run-out is taken away by the shaft's angle, and the recording has no "
         "keyphasor\n"},
        {{"rotor.csv", "--compensate", "vector", "--slow-roll-span", "0.2-0.21"},
         1,
         "rotor.csv: the run-out needs a whole turn of the shaft, and there is none between 0.2 s "
         "and 0.21 s\n"},
    };
    for (const Case& one : cases) {
        std::vector<std::string> arguments{"analyze"};
        arguments.insert(arguments.end(), one.arguments.begin(), one.arguments.end());
        const ProcessEnd end = rotavue(arguments);
        EXPECT_EQ(end.status, one.status);
        EXPECT_EQ(end.error, "rotavue analyze: " + one.line);
        EXPECT_EQ(end.out, "");
    }
    EXPECT_EQ(rotavue({"analyze", "rotor.csv", "--slow-roll", "slow.csv"}).status, 2);
}

}  // namespace

}  // namespace Rotavue::Cli
