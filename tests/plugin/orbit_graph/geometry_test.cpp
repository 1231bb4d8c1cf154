#include "plugin/orbit_graph/geometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Geometry, LimitingTakesTheLowerBoundFirst) {
    EXPECT_EQ(limitedTo(5, 0, 10), 5);
    EXPECT_EQ(limitedTo(-5, 0, 10), 0);
    EXPECT_EQ(limitedTo(15, 0, 10), 10);
    // Bounds in the wrong order: raised to 10, then lowered to 0.
    EXPECT_EQ(limitedTo(5, 10, 0), 0);
    EXPECT_EQ(limitedTo(-5, 10, 0), 0);
    EXPECT_EQ(limitedTo(15, 10, 0), 0);
}

TEST(Geometry, LimitingLeavesWhatIsNoNumber) {
    EXPECT_TRUE(std::isnan(limitedTo(NotANumber, 0, 10)));
    EXPECT_EQ(limitedTo(5, NotANumber, 10), 5);
    EXPECT_EQ(limitedTo(5, 0, NotANumber), 5);
}

TEST(Geometry, BoundsLieWithin) {
    EXPECT_TRUE(isWithin(0, 0, 1));
    EXPECT_TRUE(isWithin(1, 0, 1));
    EXPECT_FALSE(isWithin(NotANumber, 0, 1));
    EXPECT_FALSE(isWithin(0.5, 1, 0));
}

TEST(Geometry, TheEmptyRectangleHoldsNothing) {
    EXPECT_FALSE(holds(EmptyRectangle, {0, 0}));
    EXPECT_FALSE(holds(EmptyRectangle, {2147483647.0, 2147483647.0}));
    EXPECT_FALSE(holds(EmptyRectangle, {-2147483648.0, -2147483648.0}));
}

TEST(Geometry, TouchingBoxesOverlap) {
    const Rectangle box{0, 0, 10, 10};
    EXPECT_TRUE(overlaps(box, {10, 10, 20, 20}));
    EXPECT_TRUE(overlaps(box, {2, 2, 3, 3}));
    EXPECT_FALSE(overlaps(box, {10.5, 0, 20, 10}));
    EXPECT_FALSE(overlaps(box, {0, -5, 10, -0.5}));
}

TEST(Geometry, CentringMovesABoxAsAWhole) {
    EXPECT_EQ(centredOn({0, 0, 10, 4}, {100, 50}), (Rectangle{95, 48, 105, 52}));
    EXPECT_EQ(centredOn({40, 40, 20, 20}, {100, 50}), (Rectangle{110, 60, 90, 40}));
}

TEST(Geometry, APositiveTurnIsCounterClockwiseOnTheCanvas) {
    // From the right of the centre to above it, where y is smaller.
    const Point turned = turn({110, 50}, Pi / 2, {100, 50});
    EXPECT_NEAR(turned.x, 100, 1e-12);
    EXPECT_NEAR(turned.y, 40, 1e-12);
}

TEST(Geometry, ShapesDifferByEachOfTheirNumbers) {
    EXPECT_NE((Point{1, 2}), (Point{0, 2}));
    EXPECT_NE((Point{1, 2}), (Point{1, 0}));
    EXPECT_NE((Rectangle{1, 2, 3, 4}), (Rectangle{0, 2, 3, 4}));
    EXPECT_NE((Rectangle{1, 2, 3, 4}), (Rectangle{1, 0, 3, 4}));
    EXPECT_NE((Rectangle{1, 2, 3, 4}), (Rectangle{1, 2, 0, 4}));
    EXPECT_NE((Rectangle{1, 2, 3, 4}), (Rectangle{1, 2, 3, 0}));
    EXPECT_NE((Segment{{1, 2}, {3, 4}}), (Segment{{0, 2}, {3, 4}}));
    EXPECT_NE((Segment{{1, 2}, {3, 4}}), (Segment{{1, 2}, {0, 4}}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
