#include "plugin/orbit_graph/plot_mapping.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <vector>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr Rectangle Plot{60, 60, 240, 240};
constexpr Range UnitLimits{-1, 1, -1, 1};

PlotMapping mapping(const Range& limits = UnitLimits, double scaleX = 1) {
    return {Plot, 300, limits, scaleX};
}

TEST(PlotMapping, UnitPointsGoUpwardFromTheCentre) {
    EXPECT_EQ(mapping().plotPoint(0, 0), (Point{150, 150}));
    EXPECT_EQ(mapping().plotPoint(1, -1), (Point{240, 60}));
}

TEST(PlotMapping, HalfTheWidthServesBothDirections) {
    const PlotMapping flat({0, 0, 200, 100}, 300, UnitLimits, 1);
    EXPECT_EQ(flat.plotPoint(1, 1), (Point{200, 150}));
}

TEST(PlotMapping, MarkerReachesThreePixelsWithItsLargerYFirst) {
    // 0.5 of 90 to the right of 150; 0.5 of 90 above it: 300 - 195 = 105.
    EXPECT_EQ(mapping().dataToMarkerBox({0.5, 0.5}), (Rectangle{192, 108, 198, 102}));
    EXPECT_EQ(mapping().map({0.5, 0.5}).position, (Point{195, 105}));
}

TEST(PlotMapping, ZoomInXAloneShrinksTheMarker) {
    EXPECT_EQ(mapping(UnitLimits, 3).dataToMarkerBox({0, 0}), (Rectangle{149, 151, 151, 149}));
}

TEST(PlotMapping, AxisWithoutWidthMapsEverythingToZero) {
    for (const Range& limits : {Range{2, 2, -1, 1}, Range{-1, 1, 5, 5}, Range{1, -1, -1, 1}}) {
        EXPECT_EQ(mapping(limits).dataToMarkerBox({0.5, 0.5}), (Rectangle{0, 0, 0, 0}));
        EXPECT_EQ(mapping(limits).map({0.5, 0.5}).position, (Point{0, 0}));
    }
}

TEST(PlotMapping, SampleOutsideLiesOnTheLimit) {
    const MappedSample sample = mapping().map({7, -0.5});
    EXPECT_FALSE(sample.inside);
    EXPECT_EQ(sample.value, (Point{1, -0.5}));
    EXPECT_EQ(sample.position, (Point{240, 195}));
}

TEST(PlotMapping, SampleOnTheLimitIsInside) {
    EXPECT_TRUE(mapping().map({1, -1}).inside);
    EXPECT_FALSE(mapping().map({1.0000001, -1}).inside);
}

TEST(PlotMapping, WhatIsNoNumberIsOutside) {
    const MappedSample sample = mapping().map({std::numeric_limits<double>::quiet_NaN(), 0});
    EXPECT_FALSE(sample.inside);
    EXPECT_TRUE(std::isnan(sample.position.x));
}

TEST(PlotMapping, ARunOfPositionsIsThatOfItsSamples) {
    const std::vector<Point> values{{0.1, 0.2}, {5, -0.3}, {-0.7, -9}, {0.3, 1.0 / 3}};
    for (const Range& limits : {UnitLimits, Range{-0.31, 0.77, -3, 0.1}, Range{1, 1, 0, 1}}) {
        std::array<Point, 4> positions;
        mapping(limits, 0.7).mapPositions(values, positions.data());
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_EQ(positions[i], mapping(limits, 0.7).map(values[i]).position);
    }
}

TEST(PlotMapping, RightSideOfAMarkerTakesTheHalfHeight) {
    const PlotMapping flat({0, 0, 200, 100}, 300, UnitLimits, 1);
    // Left 1 * 100 - 3 + 100 and right 1 * 50 + 3 + 100; 300 - (100 - 3 + 50), 300 - (50 + 3 + 50).
    EXPECT_EQ(flat.dataToMarkerBox({1, 1}), (Rectangle{197, 153, 153, 197}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
