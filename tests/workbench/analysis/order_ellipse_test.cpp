#include "workbench/analysis/order_ellipse.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

MachineFacts rightAndUp(std::optional<Rotation> rotation) {
    MachineFacts machine;
    machine.rotation = rotation;
    return machine;
}

constexpr FieldVector Right{10, 0};
constexpr FieldVector UpLater{10, 90};  // up peaks a quarter behind right: counter-clockwise
constexpr FieldVector UpEarlier{10, 270};

TEST(OrderEllipse, OfACircleIsOneArrow) {
    const OrderEllipse left = ellipseOf({1.0, Right, UpLater}, rightAndUp({}));
    EXPECT_NEAR(left.counterClockwise, 10.0, 1e-12);
    EXPECT_NEAR(left.clockwise, 0.0, 1e-12);
    EXPECT_NEAR(left.semiMajor, 10.0, 1e-12);
    EXPECT_NEAR(left.semiMinor, 10.0, 1e-12);
    EXPECT_NEAR(left.ratio(), 1.0, 1e-12);
    EXPECT_EQ(ellipseOf({1.0, {}, {}}, rightAndUp({})).ratio(), 0.0);
    const OrderEllipse right = ellipseOf({1.0, Right, UpEarlier}, rightAndUp({}));
    EXPECT_NEAR(right.clockwise, 10.0, 1e-12);
    EXPECT_NEAR(right.counterClockwise, 0.0, 1e-12);
}

TEST(OrderEllipse, IsForwardWhereItRunsWithTheRotation) {
    const OrderVectors left{1.0, Right, UpLater};
    const OrderVectors line{1.0, Right, {10, 0}};
    const struct {
        OrderVectors order;
        std::optional<Rotation> rotation;
        Precession precession;
    } cases[] = {
        {left, Rotation::CounterClockwise, Precession::Forward},
        {left, Rotation::Clockwise, Precession::Backward},
        {left, std::nullopt, Precession::Unknown},
        {line, Rotation::Clockwise, Precession::Straight},
        {line, std::nullopt, Precession::Straight},
    };
    for (const auto& one : cases)
        EXPECT_EQ(ellipseOf(one.order, rightAndUp(one.rotation)).precession, one.precession);
}

TEST(OrderEllipse, HasTheAxesOfTheCurve) {
    // 30 to the right and 10 up, a quarter apart: the axes lie along right and up.
    const OrderEllipse flat = ellipseOf({1.0, {30, 40}, {10, 130}}, rightAndUp({}));
    EXPECT_NEAR(flat.semiMajor, 30.0, 1e-9);
    EXPECT_NEAR(flat.semiMinor, 10.0, 1e-9);
    EXPECT_NEAR(flat.tilt, 90.0, 1e-9);
    EXPECT_NEAR(flat.ratio(), 1.0 / 3.0, 1e-12);
    EXPECT_NEAR(flat.counterClockwise, 20.0, 1e-9);
    EXPECT_NEAR(flat.clockwise, 10.0, 1e-9);
    const OrderEllipse tall = ellipseOf({1.0, {10, 40}, {30, 310}}, rightAndUp({}));
    EXPECT_NEAR(std::remainder(tall.tilt, 180.0), 0.0, 1e-9);
}

TEST(OrderEllipse, LiesInThePictureNotAlongTheProbes) {
    // Only the probe at 45 degrees right sees something: a straight line 45 degrees from the top.
    MachineFacts machine;
    machine.xAngle = 45.0;
    machine.yAngle = 315.0;
    const OrderEllipse line = ellipseOf({1.0, {10, 77}, {0, 0}}, machine);
    EXPECT_NEAR(line.tilt, 45.0, 1e-9);
    EXPECT_NEAR(line.semiMajor, 10.0, 1e-9);
    EXPECT_NEAR(line.semiMinor, 0.0, 1e-9);
}

}  // namespace
}  // namespace Rotavue::Workbench
