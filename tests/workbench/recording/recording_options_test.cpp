#include "workbench/recording/recording_options.h"

#include <gtest/gtest.h>

#include <cmath>

#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

TEST(OptionWords, AreTakenExactlyAndGivenBack) {
    EXPECT_EQ(parseRotation("CW"), Rotation::Clockwise);
    EXPECT_EQ(parseRotation("CCW"), Rotation::CounterClockwise);
    EXPECT_EQ(parseRotation("ccw"), std::nullopt);
    EXPECT_EQ(parseKeyphasorKind("ramp"), KeyphasorKind::Ramp);
    EXPECT_EQ(parseKeyphasorKind(""), std::nullopt);
    EXPECT_EQ(parsePulseEdge("falling"), PulseEdge::Falling);
    EXPECT_EQ(parsePulseEdge("fall"), std::nullopt);
    EXPECT_EQ(parseCoupling("AC"), Coupling::Ac);
    EXPECT_EQ(parseCoupling("ac"), std::nullopt);
    EXPECT_EQ(toText(Rotation::CounterClockwise), "CCW");
    EXPECT_EQ(toText(KeyphasorKind::Speed), "speed");
    EXPECT_EQ(toText(PulseEdge::Rising), "rising");
    EXPECT_EQ(toText(Coupling::Dc), "DC");
}

TEST(Overlaid, TakesWhatIsSetAboveAndKeepsTheRest) {
    RecordingOptions below;
    below.rate = 1000.0;
    below.x.angle = 45.0;
    below.keyphasor.edge = PulseEdge::Falling;
    RecordingOptions above;
    above.rate = 2000.0;
    above.y.column = "B";
    above.keyphasor.pulsesPerTurn = 3;
    above.machineFile = "m.json";
    const RecordingOptions both = overlaid(below, above);
    EXPECT_EQ(both.rate, 2000.0);
    EXPECT_EQ(both.x.angle, 45.0);
    EXPECT_EQ(both.y.column, "B");
    EXPECT_EQ(both.keyphasor.edge, PulseEdge::Falling);
    EXPECT_EQ(both.keyphasor.pulsesPerTurn, 3);
    EXPECT_EQ(both.machineFile, "m.json");
}

std::string faultOf(const RecordingOptions& options) {
    try {
        checkOptions(options);
    } catch (const RecordingError& error) {
        return error.what();
    }
    return "no error";
}

TEST(CheckOptions, RefusesNumbersOutsideTheirRange) {
    RecordingOptions rate;
    rate.rate = 0.0;
    EXPECT_EQ(faultOf(rate), "found 0 at /rate, allowed: a number from 0.001 to 1e+09");
    RecordingOptions angle;
    angle.y.angle = std::nan("");
    EXPECT_EQ(
        faultOf(angle),
        "found nan at /y/angle, allowed: a number from -360 to 360, or a text such as \"45 R\" "
        "or \"45 L\"");
    RecordingOptions pulses;
    pulses.keyphasor.pulsesPerTurn = 3601;
    EXPECT_EQ(faultOf(pulses),
              "found 3601 at /keyphasor/pulsesPerTurn, allowed: a whole number from 1 to 3600");
}

TEST(CheckOptions, TakesTheEndsOfEachRange) {
    RecordingOptions options;
    options.rate = 1e9;
    options.x.angle = -360.0;
    options.keyphasor.pulsesPerTurn = 3600;
    options.clearanceWidth = 0.0;
    EXPECT_EQ(faultOf(options), "no error");
}

}  // namespace
}  // namespace Rotavue::Workbench
