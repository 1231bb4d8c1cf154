#include "tests/cli/command_test.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <numbers>
#include <set>

namespace Rotavue::Cli {

namespace {

constexpr const char* AllowedCurves =
    "raw, by-angle, not-1x, average, harmonic:1+2, subsync, reference:FILE and shaft-center, "
    "joined "
    "by commas, each once";

/// What one sample of a written recording holds: x, y and, where it is not negative, the
/// keyphasor's volts.
struct Row {
    std::string x;
    std::string y;
    int pulse = -1;
};

std::string numeral(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.4f", value);
    return text;
}

class ShowTest : public CommandTest {
protected:
    ShowTest() { writeRotor("rotor.csv"); }

    ProcessEnd render(const std::string& file, const std::string& show,
                      const std::vector<std::string>& more = {}) {
        std::vector<std::string> arguments{"render", file, "-o",     "p.svg",
                                           "--show", show, "--force"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return rotavue(arguments);
    }

    /// One line of error, exit status 1, and no picture.
    void expectRefused(const std::string& file, const std::string& show, const std::string& line) {
        const ProcessEnd end = render(file, show);
        EXPECT_EQ(end.status, 1) << show;
        EXPECT_EQ(end.error, "rotavue render: " + line + '\n');
        EXPECT_FALSE(std::filesystem::exists(at("p.svg"))) << show;
    }

    /// 2,000 samples at 1 kHz.
    void writeRows(const std::string& name, const std::function<Row(int)>& row) {
        const bool pulses = row(0).pulse >= 0;
        std::string text = pulses ? "t,x,y,kp\n" : "t,x,y\n";
        for (int i = 0; i < 2000; ++i) {
            const Row values = row(i);
            text += numeral(i / 1000.0) + ',' + values.x + ',' + values.y;
            if (pulses) text += ',' + std::to_string(values.pulse);
            text += '\n';
        }
        write(name, text);
    }

    /// The rotor's orbit, 50 samples a turn.
    static Row turning(int i) {
        const double angle = i * 2.0 * std::numbers::pi / 50.0;
        return {numeral(30.0 * std::cos(angle)), numeral(20.0 * std::sin(angle))};
    }

    static Row turningWithPulse(int i) {
        Row row = turning(i);
        row.pulse = i % 50 < 5 ? 5 : 0;
        return row;
    }
};

TEST_F(ShowTest, EachKindMakesAPictureOfItsOwn) {
    ASSERT_EQ(rotavue({"analyze", "rotor.csv", "--save-reference", "old.json"}).status, 0);
    std::set<std::string> pictures;
    const char* const kinds[] = {
        "raw",     "by-angle",           "not-1x",       "average",     "harmonic",
        "subsync", "reference:old.json", "shaft-center", "harmonic:1+2"};
    for (const char* kind : kinds) {
        const ProcessEnd end = render("rotor.csv", kind, {"--light"});
        EXPECT_EQ(end.status, 0) << end.error;
        EXPECT_TRUE(pictures.insert(read("p.svg")).second) << kind;
    }
    const ProcessEnd all =
        render("rotor.csv",
               "raw,by-angle,not-1x,average,harmonic:1+2,subsync,reference:rotor.csv,shaft-center");
    EXPECT_EQ(all.status, 0) << all.error;
}

TEST_F(ShowTest, StoredReferenceIsTheAverageOfItsRecording) {
    ASSERT_EQ(rotavue({"analyze", "rotor.csv", "--save-reference", "rotor.json"}).status, 0);
    ASSERT_EQ(render("rotor.csv", "reference:rotor.json").status, 0);
    const std::string stored = read("p.svg");
    ASSERT_EQ(render("rotor.csv", "reference:rotor.csv").status, 0);
    EXPECT_TRUE(stored == read("p.svg"));
}

TEST_F(ShowTest, WithoutTheOptionItIsTheRawOrbit) {
    ASSERT_EQ(render("rotor.csv", "raw").status, 0);
    const std::string named = read("p.svg");
    ASSERT_EQ(rotavue({"render", "rotor.csv", "-o", "p.svg", "--force"}).status, 0);
    EXPECT_TRUE(named == read("p.svg"));
}

TEST_F(ShowTest, WrongValuesAreToldWithWhatIsAllowed) {
    struct Case {
        std::string option;
        std::string value;
        std::string found;
        std::string allowed;
    };
    const std::string orders = "up to 64 orders such as 1+2+0.43, each once, from 0.01 to 1000";
    const Case cases[] = {
        {"--show", "orbit", "orbit", AllowedCurves},
        {"--show", "raw,", "", AllowedCurves},
        {"--show", "raw,raw", "raw,raw", AllowedCurves},
        {"--show", "reference:", "reference:", AllowedCurves},
        {"--show", "harmonic:", "", orders},
        {"--show", "harmonic:1+-2", "1+-2", orders},
        {"--show", "harmonic:1+1", "1+1", orders},
        {"--show", "harmonic:1e9", "1e9", orders},
        {"--speed", "0", "0", "a number from 0.1 to 1e+06 rpm"},
        {"--interval", "x", "x", "a number from 1e-06 to 1e+09 s"},
        {"--rest", "top", "top", "center or bottom"},
        {"--rest-span", "1", "1", "FROM-TO in seconds after the first sample, such as 0-1.5"},
        {"--labels", "rpm", "rpm", "speed or time"},
        {"--pointer", "800,1", "800,1", "X,Y in the picture, from 0,0 to 799,599"},
        {"--pointer", "-1,1", "-1,1", "X,Y in the picture, from 0,0 to 799,599"},
        {"--pointer", "5", "5", "X,Y in the picture, from 0,0 to 799,599"},
    };
    for (const Case& c : cases) {
        const ProcessEnd end =
            rotavue({"render", "rotor.csv", "-o", "p.svg", c.option + '=' + c.value});
        EXPECT_EQ(end.status, 2) << c.option << ' ' << c.value;
        EXPECT_EQ(end.error, "rotavue render: " + c.option + ": found \"" + c.found +
                                 "\", allowed: " + c.allowed + moreHelp("rotavue render"));
    }
    EXPECT_FALSE(std::filesystem::exists(at("p.svg")));
}

TEST_F(ShowTest, WhatNeedsTheShaftsAngleIsRefusedWithoutAKeyphasor) {
    writeRows("bare.csv", turning);
    const std::string none = "needs the shaft's angle, and the recording has no keyphasor";
    expectRefused("bare.csv", "by-angle", "bare.csv: the direct orbit by angle " + none);
    expectRefused("bare.csv", "not-1x", "bare.csv: the direct orbit by angle " + none);
    expectRefused("bare.csv", "average", "bare.csv: the averaged orbit " + none);
    expectRefused("bare.csv", "harmonic:1+2", "bare.csv: the harmonic analysis " + none);
    expectRefused("rotor.csv", "reference:bare.csv", "bare.csv: the averaged orbit " + none);
}

TEST_F(ShowTest, RawSubSyncAndShaftCenterDoWithoutAKeyphasor) {
    writeRows("bare.csv", turning);
    EXPECT_EQ(render("bare.csv", "raw,shaft-center").status, 0);
    const ProcessEnd subSync = render("bare.csv", "subsync", {"--speed", "1200"});
    EXPECT_EQ(subSync.status, 0) << subSync.error;
}

TEST_F(ShowTest, StandingShaftIsRefusedWhereATurnIsNeeded) {
    writeRows("still.csv", [](int i) {
        Row row = turning(i);
        row.pulse = 0;
        return row;
    });
    const auto refusal = [this](const char* show) {
        const ProcessEnd end = render("still.csv", show, {"--keyphasor-kind", "ramp"});
        EXPECT_EQ(end.status, 1) << show;
        EXPECT_FALSE(std::filesystem::exists(at("p.svg"))) << show;
        return end.error;
    };
    const std::string turn = " needs a whole turn of the shaft, and it stands still\n";
    EXPECT_EQ(refusal("average"), "rotavue render: still.csv: the averaged orbit" + turn);
    EXPECT_EQ(refusal("harmonic"), "rotavue render: still.csv: the harmonic analysis" + turn);
    EXPECT_EQ(refusal("subsync"),
              "rotavue render: still.csv: the sub-synchronous orbit needs 4 turns of the shaft in "
              "one go, and there are fewer\n");
}

TEST_F(ShowTest, StretchThatIsAllGapIsRefused) {
    writeRows("gap.csv", [](int i) {
        Row row = turningWithPulse(i);
        if (i >= 1000) row.x = "NaN";
        return row;
    });
    // The newest eight turns end with the last pulse, at sample 1950; its window begins at 1550.
    const ProcessEnd end = render("gap.csv", "raw");
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.error.find("gap.csv: there is no value of both probes from 1.5"),
              std::string::npos)
        << end.error;
    EXPECT_FALSE(std::filesystem::exists(at("p.svg")));
    EXPECT_EQ(render("gap.csv", "raw,average", {"--at", "0.9"}).status, 0);
}

TEST_F(ShowTest, AverageOfMostlyGapsIsRefused) {
    writeRows("gap.csv", [](int i) {
        Row row = turningWithPulse(i);
        if (i % 50 == 20) row.y = "NaN";
        return row;
    });
    const ProcessEnd end = render("gap.csv", "average");
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.error.starts_with("rotavue render: gap.csv: the averaged orbit")) << end.error;
}

// Half of the crest is cut, 17 samples of each of the 40 turns.
TEST_F(ShowTest, ClippedProbeIsDrawnWithALineThatSaysSo) {
    writeRows("clipped.csv", [](int i) {
        Row row = turningWithPulse(i);
        row.x = numeral(std::min(15.0, 30.0 * std::cos(i * 2.0 * std::numbers::pi / 50.0)));
        return row;
    });
    const ProcessEnd end = render("clipped.csv", "average");
    EXPECT_EQ(end.status, 0);
    EXPECT_NE(end.error.find("clipped.csv: probe X is clipped at 15"), std::string::npos)
        << end.error;
}

TEST_F(ShowTest, ReferenceThatCannotBeUsedIsToldByName) {
    write("list.json", "[1, 2]");
    const auto refusal = [this](const std::string& show) {
        const ProcessEnd end = render("rotor.csv", show);
        EXPECT_EQ(end.status, 1) << show;
        EXPECT_EQ(std::count(end.error.begin(), end.error.end(), '\n'), 1) << end.error;
        return end.error;
    };
    EXPECT_TRUE(refusal("reference:none.json").starts_with("rotavue render: none.json"));
    EXPECT_TRUE(refusal("reference:none.csv").starts_with("rotavue render: none.csv"));
    EXPECT_TRUE(refusal("reference:list.json").starts_with("rotavue render: list.json"));
    ASSERT_EQ(
        rotavue({"analyze", "rotor.csv", "--save-reference", "mil.json", "--unit", "mil"}).status,
        0);
    EXPECT_EQ(refusal("reference:mil.json"),
              "rotavue render: rotor.csv: the reference orbit is in \"mil\", and the recording in "
              "\"um\"\n");
}

TEST_F(ShowTest, ShaftCenterIsRefusedWithoutTheMean) {
    const ProcessEnd end = render("rotor.csv", "shaft-center", {"--coupling", "AC"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "rotavue render: rotor.csv: the shaft centre needs the mean of the gaps, which AC "
              "coupling takes away\n");
}

TEST_F(ShowTest, ShaftCenterBeforeTheFirstPositionIsRefused) {
    const ProcessEnd end = render("rotor.csv", "shaft-center", {"--at", "0"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "rotavue render: rotor.csv: the shaft centre needs a stretch of time before the "
              "newest sample\n");
    EXPECT_EQ(render("rotor.csv", "shaft-center", {"--at", "0.1"}).status, 0);
}

TEST_F(ShowTest, FirstOrderAgainstTheRotationIsNoted) {
    // Right 30 cos, up 20 sin: counter-clockwise.
    const auto noted = [this](const char* rotation) {
        const ProcessEnd end = render("rotor.csv", "harmonic:1", {"--rotation", rotation});
        EXPECT_EQ(end.status, 0) << end.error;
        return end.error.find("1X runs against the rotation") != std::string::npos;
    };
    EXPECT_TRUE(noted("CW"));
    EXPECT_FALSE(noted("CCW"));
}

TEST_F(ShowTest, ShaftCenterIsDarkForItsWhiteDotUnlessLightIsAskedFor) {
    const auto picture = [this](const char* show, const std::vector<std::string>& more) {
        EXPECT_EQ(render("rotor.csv", show, more).status, 0);
        return read("p.svg");
    };
    const std::string usual = picture("raw,shaft-center", {});
    EXPECT_TRUE(usual == picture("raw,shaft-center", {"--dark"}));
    EXPECT_FALSE(usual == picture("raw,shaft-center", {"--light"}));
    EXPECT_TRUE(picture("raw", {}) == picture("raw", {"--light"}));
}

TEST_F(ShowTest, PointerShowsInThePicture) {
    ASSERT_EQ(render("rotor.csv", "raw", {"--no-header"}).status, 0);
    const std::string without = read("p.svg");
    ASSERT_EQ(render("rotor.csv", "raw", {"--no-header", "--pointer", "700,300"}).status, 0);
    EXPECT_FALSE(without == read("p.svg"));
}

TEST_F(ShowTest, PointerInTheStripIsRefused) {
    const ProcessEnd end = render("rotor.csv", "raw", {"--pointer", "300,2"});
    EXPECT_EQ(end.status, 2);
    EXPECT_TRUE(
        end.error.starts_with("rotavue render: --pointer: found \"300,2\", allowed: a "
                              "place below the strip, Y from "))
        << end.error;
    EXPECT_FALSE(std::filesystem::exists(at("p.svg")));
}

}  // namespace

}  // namespace Rotavue::Cli
