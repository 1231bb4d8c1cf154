#include "plugin/orbit_control/extents.h"

#include <gtest/gtest.h>

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr double Largest = 1.7976931348623157e+308;
const Range New{Largest, -Largest, Largest, -Largest};

TEST(Extents, NewOnesAreEmpty) {
    const Extents extents;
    EXPECT_EQ(extents.range(), New);
    EXPECT_TRUE(extents.isUnset());
}

TEST(Extents, OnePointIsMinimumAndMaximum) {
    Extents extents;
    extents.takeIn(3.0, -4.0);
    EXPECT_EQ(extents.range(), (Range{3.0, 3.0, -4.0, -4.0}));
    EXPECT_FALSE(extents.isUnset());
}

TEST(Extents, AreUnsetAsLongAsOneEdgeIs) {
    constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
    // The largest number moves a maximum alone, the smallest a minimum.
    for (const Point& point :
         {Point{Largest, 1}, Point{-Largest, 1}, Point{1, Largest}, Point{1, -Largest}}) {
        Extents extents;
        extents.takeIn(point.x, point.y);
        EXPECT_TRUE(extents.isUnset()) << point.x << ' ' << point.y;
        extents.takeIn(NoNumber, NoNumber);
        EXPECT_TRUE(extents.isUnset()) << point.x << ' ' << point.y;
        extents.takeIn(0, 0);
        EXPECT_FALSE(extents.isUnset()) << point.x << ' ' << point.y;
    }
}

TEST(Extents, EachEdgeGoesItsOwnWay) {
    Extents extents;
    extents.takeIn(1.0, 2.0);
    extents.takeIn(-1.0, 5.0);
    extents.takeIn(0.0, 3.0);
    EXPECT_EQ(extents.range(), (Range{-1.0, 1.0, 2.0, 5.0}));
}

TEST(Extents, EmptyOnesChangeNoOthers) {
    Extents extents = Extents::ofOrigin();
    extents.takeIn(Extents{});
    EXPECT_EQ(extents.range(), (Range{0.0, 0.0, 0.0, 0.0}));
    Extents empty;
    empty.takeIn(Extents{});
    EXPECT_EQ(empty.range(), New);
}

TEST(Extents, OthersAreTakenInEdgeByEdge) {
    Extents wide;
    wide.takeIn(-9.0, 0.0);
    wide.takeIn(9.0, 0.5);
    Extents high;
    high.takeIn(0.0, -7.0);
    high.takeIn(1.0, 7.0);
    wide.takeIn(high);
    EXPECT_EQ(wide.range(), (Range{-9.0, 9.0, -7.0, 7.0}));
}

TEST(Extents, WideningMovesAllEdgesOutward) {
    Extents extents;
    extents.takeIn(1.0, 2.0);
    extents.widen(0.5);
    EXPECT_EQ(extents.range(), (Range{0.5, 1.5, 1.5, 2.5}));
}

TEST(Extents, WhatIsNoNumberWidensNothing) {
    constexpr double None = std::numeric_limits<double>::quiet_NaN();
    Extents extents;
    extents.takeIn(None, 1.0);
    EXPECT_EQ(extents.range(), (Range{Largest, -Largest, 1.0, 1.0}));
    EXPECT_TRUE(extents.isUnset()) << "an axis without a value";
    extents.takeIn(2.0, None);
    EXPECT_EQ(extents.range(), (Range{2.0, 2.0, 1.0, 1.0}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
