#include "workbench/paint/ellipse_angle.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

const QRectF Circle(0, 0, 100, 100);

TEST(ArcAngles, RunCounterClockwiseOnTheScreen) {
    // From the right (0 degrees) to the top (90 degrees), 16 units a degree.
    const ArcAngles arc = arcAngles(Circle, {100, 50}, {50, 0});
    EXPECT_EQ(arc.start, 0);
    EXPECT_EQ(arc.span, 90 * 16);
}

TEST(ArcAngles, GoTheLongWayRoundWhenTheRaysAreSwapped) {
    const ArcAngles arc = arcAngles(Circle, {50, 0}, {100, 50});
    EXPECT_EQ(arc.start, 90 * 16);
    EXPECT_EQ(arc.span, 270 * 16);
}

TEST(ArcAngles, OfEqualRaysAreTheWholeEllipse) {
    EXPECT_EQ(arcAngles(Circle, {80, 20}, {80, 20}).span, 360 * 16);
}

TEST(ArcAngles, OnlyTheDirectionOfARayCounts) {
    EXPECT_EQ(arcAngles(Circle, {100, 0}, {50, 0}).start,
              arcAngles(Circle, {51, 49}, {50, 0}).start);
}

TEST(ArcAngles, FollowTheRayOnAFlatEllipse) {
    // The ray at 45 degrees meets x = 100 cos t, y = 50 sin t where tan t = 2, at t = 63.43
    // degrees.
    const QRectF flat(0, 0, 200, 100);
    EXPECT_NEAR(ellipseAngle(flat, {150, 0}), 63.4349, 1e-3);
}

TEST(ArcAngles, ABoxWithoutAnySizeHasSomeAngle) {
    const ArcAngles arc = arcAngles(QRectF(10, 10, 0, 0), {10, 10}, {20, 0});
    EXPECT_GT(arc.span, 0);
    EXPECT_LE(arc.span, 360 * 16);
}

}  // namespace
}  // namespace Rotavue::Workbench
