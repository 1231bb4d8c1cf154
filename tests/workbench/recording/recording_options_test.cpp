#include "workbench/recording/recording_options.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace Rotavue::Workbench
