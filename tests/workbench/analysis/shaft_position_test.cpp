#include "workbench/analysis/shaft_position.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Rotavue::Workbench {
namespace {

/// Right and up, 200 um of diametral clearance.
MachineFacts bearing(std::optional<Rotation> rotation = Rotation::CounterClockwise) {
    MachineFacts machine;
    machine.rotation = rotation;
    machine.clearanceWidth = 200.0;
    machine.clearanceHeight = 200.0;
    return machine;
}

// The radial clearance is 100 um; 60 to the right and 80 down are 100 um away, atan(60 / 80) ahead
// of straight down where the shaft turns counter-clockwise, and as far behind it where it doesn't.
TEST(ShaftPosition, IsTheDistanceByTheClearanceAndTheAngleFromTheLoad) {
    const ProbeValues place{60.0, -80.0};
    const double angle = std::atan(0.75) * 180.0 / std::acos(-1.0);  // 36.87 degrees
    const ShaftPosition left = shaftPosition(bearing(), place).value();
    EXPECT_NEAR(left.eccentricity, 1.0, 1e-12);
    EXPECT_NEAR(left.attitude.value(), angle, 1e-9);
    const ShaftPosition right = shaftPosition(bearing(Rotation::Clockwise), place).value();
    EXPECT_NEAR(right.attitude.value(), -angle, 1e-9);
}

TEST(ShaftPosition, HasItsAngleInTheDirectionOfRotation) {
    const struct {
        ProbeValues place;
        double counterClockwise;
        double clockwise;
    } cases[] = {
        {{0.0, -50.0}, 0.0, 0.0},
        {{50.0, 0.0}, 90.0, -90.0},
        {{-50.0, 0.0}, -90.0, 90.0},
        {{50.0, 50.0}, 135.0, -135.0},
    };
    for (const auto& one : cases) {
        EXPECT_NEAR(shaftPosition(bearing(), one.place)->attitude.value(), one.counterClockwise,
                    1e-9);
        EXPECT_NEAR(shaftPosition(bearing(Rotation::Clockwise), one.place)->attitude.value(),
                    one.clockwise, 1e-9);
    }
}

// Displacement toward a probe at 45 degrees right alone is up and right in equal parts.
TEST(ShaftPosition, LiesInThePictureNotAlongTheProbes) {
    MachineFacts machine = bearing();
    machine.xAngle = 45.0;
    machine.yAngle = 315.0;
    const ShaftPosition position = shaftPosition(machine, {50.0, 0.0}).value();
    EXPECT_NEAR(position.eccentricity, 0.5, 1e-12);
    EXPECT_NEAR(position.attitude.value(), 135.0, 1e-9);
}

// 30 of 150 to the right and 40 of 100 down: sqrt(0.2 * 0.2 + 0.4 * 0.4).
TEST(ShaftPosition, OfAnEllipticClearanceIsMeasuredByBothSides) {
    MachineFacts machine = bearing();
    machine.clearanceWidth = 300.0;
    EXPECT_NEAR(shaftPosition(machine, {30.0, -40.0})->eccentricity, std::sqrt(0.2), 1e-12);
}

TEST(ShaftPosition, HasNoAngleInTheMiddleOrWithoutRotation) {
    EXPECT_FALSE(shaftPosition(bearing(), {0.0, -0.49})->attitude);
    EXPECT_TRUE(shaftPosition(bearing(), {0.0, -0.51})->attitude);
    EXPECT_FALSE(shaftPosition(bearing(std::nullopt), {0.0, -50.0})->attitude);
}

TEST(ShaftPosition, NeedsBothSidesOfTheClearanceAndTwoDirections) {
    MachineFacts machine = bearing();
    machine.clearanceHeight = 0.0;
    EXPECT_FALSE(shaftPosition(machine, {}));
    machine = bearing();
    machine.yAngle = machine.xAngle;
    EXPECT_FALSE(shaftPosition(machine, {}));
}

}  // namespace
}  // namespace Rotavue::Workbench
