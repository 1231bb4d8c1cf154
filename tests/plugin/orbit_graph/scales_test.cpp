#include "plugin/orbit_graph/scales.h"

#include "plugin/orbit_graph/graph_state.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::int32_t Smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

std::vector<Segment> gridUnits(std::int32_t tickCount) {
    std::vector<Segment> units;
    fillGridUnits(units, tickCount);
    return units;
}

std::vector<Rectangle> ringUnits(std::int32_t tickCount) {
    std::vector<Rectangle> units;
    fillRingUnits(units, tickCount);
    return units;
}

std::vector<Tick> axisTicks(double lower, double upper, std::int64_t positions,
                            const std::wstring& format) {
    AxisTicks axis(lower, upper, positions, format);
    std::vector<Tick> ticks;
    for (std::int64_t i = 0; i < positions; ++i)
        ticks.push_back(axis.next());
    return ticks;
}

TEST(TickPositions, CountBothEndsAndInACircleTheCentre) {
    EXPECT_EQ(tickPositions(GraphType::Grid, 5), 7);
    EXPECT_EQ(tickPositions(GraphType::Circle, 5), 13);
    EXPECT_EQ(tickPositions(GraphType::Grid, 0), 2);
    EXPECT_EQ(tickPositions(GraphType::Circle, 0), 3);
    EXPECT_EQ(tickPositions(7, 1), 5);
}

TEST(TickPositions, StayInBoundsForAnyCount) {
    EXPECT_EQ(tickPositions(GraphType::Grid, Largest), MostTicks + 2);
    EXPECT_EQ(tickPositions(GraphType::Circle, Largest), 2 * MostTicks + 3);
    EXPECT_LT(tickPositions(GraphType::Grid, Smallest), 0);
    EXPECT_LT(tickPositions(GraphType::Circle, Smallest), 0);
}

TEST(GridUnits, BeginAtTheUpperAndRightEdge) {
    // A step of 2 / 2: t = 1 and t = 0; -1 is left to the edges.
    EXPECT_EQ(gridUnits(1),
              (std::vector<Segment>{
                  {{1, -1}, {1, 1}}, {{-1, 1}, {1, 1}}, {{0, -1}, {0, 1}}, {{-1, 0}, {1, 0}}}));
}

TEST(GridUnits, WithoutTicksHoldTheEdgeAlone) {
    EXPECT_EQ(gridUnits(0), (std::vector<Segment>{{{1, -1}, {1, 1}}, {{-1, 1}, {1, 1}}}));
}

TEST(GridUnits, RepeatedSubtractionLeavesASeventhLineForFiveTicks) {
    // Six steps of 1/3 from 1 end a rounding error above -1, so that t = -1 is drawn as well.
    const std::vector<Segment> units = gridUnits(5);
    EXPECT_EQ(units.size(), 2U * 7U);
    EXPECT_NEAR(units[12].start.x, -1, 1e-15);
    EXPECT_GT(units[12].start.x, -1);
}

TEST(EdgeUnits, AreTheLeftEdgeAndTheOneAtPlusOne) {
    EXPECT_EQ(edgeUnits(), (std::vector<Segment>{{{-1, -1}, {-1, 1}}, {{-1, 1}, {1, 1}}}));
}

TEST(CrossUnits, AreTheTwoAxesThroughTheCentre) {
    EXPECT_EQ(crossUnits(), (std::vector<Segment>{{{-1, 0}, {1, 0}}, {{0, -1}, {0, 1}}}));
}

TEST(RingUnits, DivideTheRadiusInEqualParts) {
    EXPECT_EQ(ringUnits(3),
              (std::vector<Rectangle>{{0, 0, 0.75, 0.75}, {0, 0, 0.5, 0.5}, {0, 0, 0.25, 0.25}}));
    EXPECT_TRUE(ringUnits(0).empty());
}

TEST(RingUnits, RepeatedSubtractionLeavesASixthOfNoSizeForFiveTicks) {
    const std::vector<Rectangle> units = ringUnits(5);
    EXPECT_EQ(units.size(), 6U);
    EXPECT_NEAR(units[4].right, 1.0 / 6.0, 1e-15);
    EXPECT_GT(units[5].right, 0);
    EXPECT_LT(units[5].right, 1e-15);
}

TEST(UnitLists, StayInBoundsForAnyCount) {
    // One more than the exact number, for the rounding error.
    EXPECT_GE(gridUnits(Largest).size(), 2U * (MostTicks + 1));
    EXPECT_LE(gridUnits(Largest).size(), 2U * (MostTicks + 2));
    EXPECT_GE(ringUnits(Largest).size(), std::size_t{MostTicks});
    EXPECT_LE(ringUnits(Largest).size(), std::size_t{MostTicks} + 1);
}

TEST(UnitLists, StepsThatWouldNeverEndStop) {
    for (const std::int32_t count : {-1, -2, -1000, Smallest}) {
        EXPECT_EQ(gridUnits(count).size(), 2U) << count;
        EXPECT_TRUE(ringUnits(count).empty()) << count;
    }
}

TEST(AxisTicks, GoFromTheUpperEndToTheLower) {
    const std::vector<Tick> ticks = axisTicks(-11, 11, 3, L"%.1f");
    ASSERT_EQ(ticks.size(), 3U);
    const double values[] = {11, 0, -11};
    const double units[] = {1, 0, -1};
    const wchar_t* texts[] = {L"11.0", L"0.0", L"-11.0"};
    const bool atLimit[] = {true, false, true};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(ticks[i].value, values[i]);
        EXPECT_EQ(ticks[i].unit, units[i]);
        EXPECT_EQ(ticks[i].text, texts[i]);
        EXPECT_EQ(ticks[i].atLimit, atLimit[i]);
    }
}

TEST(AxisTicks, AllCountAsLimitsInARangeOfSmallNumbers) {
    for (const Tick& tick : axisTicks(0, 1e-7, 7, L"%.0f"))
        EXPECT_TRUE(tick.atLimit) << tick.value;
    // Twice as wide a range, and the middle is 2e-7 away from both ends.
    EXPECT_FALSE(axisTicks(0, 4e-7, 3, L"%.0f")[1].atLimit);
}

TEST(AxisTicks, OfOnePositionStandAtTheUpperLimit) {
    const std::vector<Tick> single = axisTicks(-1, 1, 1, L"%.0f");
    ASSERT_EQ(single.size(), 1U);
    EXPECT_TRUE(single[0].atLimit);
}

TEST(FittedLimits, AreSymmetricWhenAbsolute) {
    // 3 * 1.1
    EXPECT_EQ(
        fittedLimits({-3, 1, -2, 2}, GraphType::Grid, AutoScaleType::Absolute),
        (Range{-3.3000000000000003, 3.3000000000000003, -3.3000000000000003, 3.3000000000000003}));
}

TEST(FittedLimits, KeepEachAxisWithItsOwnMarginWhenRelative) {
    EXPECT_EQ(fittedLimits({0, 10, 100, 200}, GraphType::Grid, AutoScaleType::Relative),
              (Range{-0.5, 10.5, 95, 205}));
}

TEST(FittedLimits, AreAbsoluteInAnyCircle) {
    // 200 * 1.1
    EXPECT_EQ(fittedLimits({0, 10, 100, 200}, GraphType::Circle, AutoScaleType::Relative),
              symmetricRange(200 * 1.1));
}

TEST(FittedLimits, OfExtentsEmptyInOnePlaceAreZeros) {
    const Range zeros{0, 0, 0, 0};
    const Range empty;
    for (const Range& extents : {empty, Range{empty.xMin, 5, -5, 5}, Range{-5, empty.xMax, -5, 5},
                                 Range{-5, 5, empty.yMin, 5}, Range{-5, 5, -5, empty.yMax}}) {
        EXPECT_EQ(fittedLimits(extents, GraphType::Grid, AutoScaleType::Absolute), zeros);
        EXPECT_EQ(fittedLimits(extents, GraphType::Grid, AutoScaleType::Relative), zeros);
    }
}

TEST(FittedLimits, OfOneFlatAxisAreUsableOnlyWhenAbsolute) {
    const Range flat{0, 10, 5, 5};
    EXPECT_EQ(fittedLimits(flat, GraphType::Grid, AutoScaleType::Relative),
              (Range{-0.5, 10.5, 5, 5}));
    EXPECT_EQ(fittedLimits(flat, GraphType::Grid, AutoScaleType::Absolute), symmetricRange(11));
}

TEST(FittedLimits, AreSymmetricForAnyOtherScalingOrGraphType) {
    // 40 * 1.1
    const Range data{0, 10, 20, 40};
    EXPECT_EQ(fittedLimits(data, GraphType::Grid, 2), symmetricRange(44));
    EXPECT_EQ(fittedLimits(data, GraphType::Grid, -1), symmetricRange(44));
    EXPECT_EQ(fittedLimits(data, 2, AutoScaleType::Relative), symmetricRange(44));
}

TEST(AxisTicks, CountAsLimitsOnlyWithinLessThanTheEpsilon) {
    // The middle of three ticks from 0 is half the range away from both limits.
    constexpr double Epsilon = 1.1920928955078125e-07;
    const auto middleIsAtLimit = [](double distance) {
        return axisTicks(0, 2 * distance, 3, L"%.0f")[1].atLimit;
    };
    EXPECT_FALSE(middleIsAtLimit(Epsilon));
    EXPECT_TRUE(middleIsAtLimit(std::nextafter(Epsilon, 0)));
}

TEST(AxisTicks, KeepTheErrorsOfRepeatedSubtraction) {
    // A tenth has no exact double: from the fourth value on, each is a little too large.
    const double values[] = {1.0,
                             0.9,
                             0.8,
                             0.7000000000000001,
                             0.6000000000000001,
                             0.5000000000000001,
                             0.40000000000000013,
                             0.30000000000000016,
                             0.20000000000000015,
                             0.10000000000000014,
                             1.3877787807814457e-16};
    const std::vector<Tick> ticks = axisTicks(0, 1, 11, L"%.0f");
    for (std::size_t i = 0; i < 11; ++i)
        EXPECT_EQ(ticks[i].value, values[i]) << i;
    EXPECT_TRUE(ticks[10].atLimit);
}

TEST(AxisTicks, OfACircleFallOnItsRingsAndItsCentre) {
    const std::vector<Tick> ticks = axisTicks(-1, 1, tickPositions(GraphType::Circle, 3), L"%.0f");
    const std::vector<Rectangle> rings = ringUnits(3);
    ASSERT_EQ(ticks.size(), 9U);
    for (std::size_t i = 0; i < rings.size(); ++i) {
        EXPECT_EQ(ticks[i + 1].unit, rings[i].right);
        EXPECT_EQ(ticks[7 - i].unit, -rings[i].right);
    }
    EXPECT_EQ(ticks[4].unit, 0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
