#include "cli/orbit_picture.h"

#include "cli/curve_list.h"
#include "cli/usage_error.h"
#include "tests/cli/command_test.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

constexpr int StripHeight = 50;

/// Paints nothing: keeps what stands in the strip, and lets the host write down what is drawn.
class NotingStudio final : public PictureStudio {
public:
    PictureArea areaOf(const PictureOrder& order, const PictureHeader& header) override {
        const int strip = header.facts.empty() ? 0 : StripHeight;
        return {.width = order.width, .height = order.height - strip, .textHeight = 16};
    }

    std::unique_ptr<OpenPicture> open(const PictureOrder&, const PictureHeader& header) override {
        mode = header.facts.empty() ? "" : header.facts.front();
        facts = header.facts;
        host.takeCalls();
        return std::make_unique<Sheet>(host);
    }

    /// Whether a text was drawn in the last frame.
    bool drew(const std::string& text) const {
        return std::any_of(host.calls().begin(), host.calls().end(), [&](const std::string& call) {
            return call.find('"' + text + '"') != std::string::npos;
        });
    }

    HostKit::MemoryHost host;
    std::string mode;
    std::vector<std::string> facts;

private:
    class Sheet final : public OpenPicture {
    public:
        explicit Sheet(HostKit::MemoryHost& host) : host_(host) {}
        Meridax::Host::Ref<Meridax::Host::IHostCanvas> canvas() override { return host_.canvas(); }
        std::string finish(const ReadingProgress&) override { return {}; }

    private:
        HostKit::MemoryHost& host_;
    };
};

/// The rotor of 20 turns a second, x 30 cos and y 20 sin of its angle.
class OrbitPictureTest : public CommandTest {
protected:
    OrbitPictureTest() {
        writeRotor("rotor.csv");
        options.recordings = {at("rotor.csv").string()};
        options.module = moduleFile();
        studio.host.record();
    }

    OrbitScene& paint(const std::string& show) {
        options.show = curveRequests(show);
        shown.emplace(options);
        OrbitPicture(options, *shown, studio).paint();
        return shown->scene();
    }

    RenderOptions options;
    NotingStudio studio;
    std::optional<ShownScene> shown;
};

TEST_F(OrbitPictureTest, StripSaysWhichCurvesOfHowMuch) {
    struct Case {
        std::string show;
        std::string mode;
    };
    const Case cases[] = {
        {"raw", "direct, 8 turns"},
        {"average", "average, 8 turns"},
        {"harmonic", "1X, 8 turns"},
        {"harmonic:1+2+0.43", "1X, 2X, 0.43X, 8 turns"},
        {"subsync", "below 1X, 100 ms"},
        {"reference:" + at("rotor.csv").string(), "reference rotor"},
        {"shaft-center", "shaft centre"},
        {"raw,average,shaft-center", "direct + average + shaft centre, 8 turns"},
    };
    for (const Case& c : cases) {
        paint(c.show);
        EXPECT_EQ(studio.mode, c.mode);
    }
    options.milliseconds = 60.0;
    paint("subsync");
    EXPECT_EQ(studio.mode, "below 1X, 60 ms");
}

TEST_F(OrbitPictureTest, LegendNamesEachKind) {
    // Six names do not fit into one line of 600 pixels: each has its own.
    const std::string show =
        "raw,average,harmonic:1+2,subsync,reference:" + at("rotor.csv").string() + ",shaft-center";
    paint(show);
    for (const char* name : {"raw (um)", "average (um)", "1X, 2X (um)", "below 1X (um)",
                             "reference rotor (um)", "shaft centre (um)"}) {
        EXPECT_TRUE(studio.drew(name)) << name;
    }
    paint("raw,average");
    EXPECT_TRUE(studio.drew("raw (um), "));
    EXPECT_TRUE(studio.drew("average (um)"));
    paint("average");
    EXPECT_TRUE(studio.drew("rotor (um)"));
}

TEST_F(OrbitPictureTest, TwoRecordingsHaveACurveOfEachKindAndOneReference) {
    writeRotor("other.csv");
    options.recordings.push_back(at("other.csv").string());
    const OrbitScene& scene = paint("average,raw,reference:" + at("rotor.csv").string());
    EXPECT_EQ(scene.curveNames(),
              (std::vector<std::string>{"rotor raw", "other raw", "rotor average",
                                        "reference rotor", "other average"}));
}

TEST_F(OrbitPictureTest, AverageAndOrdersAreThoseOfTheShownTurns) {
    // From 1 s on the orbit is twice as large.
    std::string text = "t,x,y,kp\n";
    for (int i = 0; i < 2000; ++i) {
        char line[100];
        const double size = i < 1000 ? 30.0 : 60.0;
        const double angle = 2.0 * std::numbers::pi * i / 50.0;
        std::snprintf(line, sizeof line, "%.3f,%.6f,%.6f,%d\n", i / 1000.0, size * std::cos(angle),
                      size * std::sin(angle), i % 50 < 5 ? 5 : 0);
        text += line;
    }
    write("grows.csv", text);
    options.recordings = {at("grows.csv").string()};
    const auto largest = [&](const std::string& id) {
        const std::vector<double>& x = shown->scene().host().description.channels[id].values[4];
        return *std::max_element(x.begin(), x.end());
    };
    paint("average");
    EXPECT_NEAR(largest("derived1"), 60.0, 0.01);
    options.at = 0.9;
    paint("average");
    EXPECT_NEAR(largest("derived1"), 30.0, 0.01);
    paint("harmonic");
    // Component 4 holds r cos(90 degrees - lag) of Y, then of X: 30 sin 93.6 degrees is the larger.
    EXPECT_NEAR(largest("derived1"), 30.0 * std::sin(93.6 * std::numbers::pi / 180.0), 0.01);
}

TEST_F(OrbitPictureTest, ShaftCenterReachesFromTheFirstSampleToTheNewestShown) {
    options.shaftCenter.interval = 0.5;
    options.at = 1.4;
    OrbitScene& scene = paint("shaft-center");
    // The third interval, of 0.4 s, is more than half of one.
    const std::vector<double>& times =
        scene.host().description.channels["derived1"].timestamps.list();
    ASSERT_EQ(times.size(), 3U);
    EXPECT_LT(times.back(), 1.4);
}

TEST_F(OrbitPictureTest, PositionsAreLabelledBySpeedOrTime) {
    options.shaftCenter.interval = 1.0;
    paint("shaft-center");
    EXPECT_TRUE(studio.drew("1200"));
    options.shaftCenter.labels = PositionLabels::Time;
    paint("shaft-center");
    EXPECT_FALSE(studio.drew("1200"));
}

TEST_F(OrbitPictureTest, PointerReadsOutTheSampleNextToIt) {
    // Right of the plot's centre, which is that of the area below the strip, the nearest sample is
    // that of angle 0: (30, 0). The digits are three of the limit's, 45.
    options.pointer = PicturePoint{700, StripHeight + (600 - StripHeight) / 2};
    paint("raw");
    EXPECT_TRUE(studio.drew("X= 30.0 um; Y= 0.0 um; "));
    options.pointer.reset();
    paint("raw");
    EXPECT_FALSE(studio.drew("X= 30.0 um; Y= 0.0 um; "));
}

TEST_F(OrbitPictureTest, PointerOnAShaftCenterReadsOutItsSpeed) {
    options.shaftCenter.interval = 1.0;
    options.pointer = PicturePoint{500, 300};
    paint("shaft-center");
    const auto& calls = studio.host.calls();
    EXPECT_TRUE(std::any_of(calls.begin(), calls.end(), [](const std::string& call) {
        return call.find("RPM= 1200\"") != std::string::npos;
    }));
}

TEST_F(OrbitPictureTest, PointerInTheStripIsRefused) {
    options.pointer = PicturePoint{300, StripHeight - 1};
    EXPECT_THROW(paint("raw"), UsageError);
    options.pointer = PicturePoint{300, StripHeight};
    paint("raw");
}

TEST_F(OrbitPictureTest, StripSaysThatRunOutIsCompensatedAndOnlyThen) {
    const auto says = [&](const std::string& fact) {
        return std::find(studio.facts.begin(), studio.facts.end(), fact) != studio.facts.end();
    };
    paint("raw");
    EXPECT_FALSE(says("run-out compensated: 1X, 2X vector"));
    options.compensation = CompensationChoice{
        .form = CompensationForm::Vector, .slowRoll = at("rotor.csv").string(), .span = {}};
    paint("raw");
    EXPECT_TRUE(says("run-out compensated: 1X, 2X vector"));
    options.compensation->form = CompensationForm::Waveform;
    paint("raw");
    EXPECT_TRUE(says("run-out compensated: waveform"));
}

}  // namespace

}  // namespace Rotavue::Cli
