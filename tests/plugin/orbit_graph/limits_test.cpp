#include "plugin/orbit_graph/graph_views.h"
#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Limits : testing::Test, LaidOutGraph {
    Range limits() const { return limitsOf(graph.state()); }
};

TEST_F(Limits, FollowTheDataWithoutManualLimits) {
    graph.autoScale({-3, 1, -2, 2});
    EXPECT_EQ(limits(), symmetricRange(3.3000000000000003));
}

TEST_F(Limits, StayWithManualLimits) {
    graph.setManualLimits(1);
    graph.autoScale({-3, 1, -2, 2});
    EXPECT_EQ(limits(), (Range{-1, 1, -1, 1}));
}

TEST_F(Limits, BecomeSymmetricInACircleAndStaySoInAGrid) {
    setLimits({0, 10, -1, 1});
    graph.setGraphType(GraphType::Circle);
    EXPECT_EQ(limits(), (Range{-10, 10, -10, 10}));
    graph.setGraphType(GraphType::Grid);
    EXPECT_EQ(limits(), (Range{-10, 10, -10, 10}));
}

TEST_F(Limits, AreLeftAloneByTheSameGraphType) {
    graph.setGraphType(GraphType::Circle);
    setLimits({0, 10, -1, 1});
    graph.setGraphType(GraphType::Circle);
    EXPECT_EQ(limits(), (Range{0, 10, -1, 1}));
}

TEST_F(Limits, OfTheHoveredStripAloneAreFitted) {
    const Range data{2, 3, 4, 5};
    graph.setLimits(data);
    EXPECT_EQ(limits(), (Range{-1, 1, -1, 1}));
    graph.layoutAxisStrips(canvas.ref());
    graph.hitTestAxisStrips({50, 150});
    graph.setLimits(data);
    EXPECT_EQ(limits(), (Range{-1, 1, 4, 5}));
    graph.hitTestAxisStrips({150, 250});
    graph.setLimits(data);
    EXPECT_EQ(limits(), (Range{2, 3, 4, 5}));
}

TEST_F(Limits, OfXWinWhereBothStripsAreHovered) {
    graph.layoutAxisStrips(canvas.ref());
    graph.hitTestAxisStrips({60, 240});
    graph.setLimits({2, 3, 4, 5});
    EXPECT_EQ(limits(), (Range{2, 3, -1, 1}));
}

TEST_F(Limits, OfACircleAreFittedOnBothAxes) {
    graph.setGraphType(GraphType::Circle);
    graph.setLimits({2, 3, -7, 5});
    EXPECT_EQ(limits(), symmetricRange(7));
}

TEST_F(Limits, TakeOnTheMagnitudeOfAnAbsoluteEdit) {
    graph.setLimit(-4, 1);
    EXPECT_EQ(limits(), (Range{-4, 4, -4, 4}));
    graph.setLimit(2, 99);
    EXPECT_EQ(limits(), (Range{-2, 2, -2, 2}));
}

TEST_F(Limits, TakeOnTheMagnitudeOfAnEditInACircle) {
    graph.setAutoScaleType(AutoScaleType::Relative);
    graph.setGraphType(GraphType::Circle);
    graph.setLimit(3, 2);
    EXPECT_EQ(limits(), (Range{-3, 3, -3, 3}));
}

TEST_F(Limits, RefuseARelativeEditThatWouldTurnTheAxis) {
    graph.setAutoScaleType(AutoScaleType::Relative);
    setLimits({0, 1, -1, 1});
    graph.setLimit(-4, 1);
    EXPECT_EQ(limits(), (Range{0, 1, -1, 1}));
}

TEST_F(Limits, ChangeByThemselvesInStrictOrder) {
    struct Case {
        double value;
        std::int32_t index;
        Range expected;
    };
    const Range start{0, 10, 20, 30};
    const Case cases[] = {
        {5, 0, {5, 10, 20, 30}},
        {10, 0, start},
        {5, 1, {0, 5, 20, 30}},
        {0, 1, start},
        {25, 2, {0, 10, 25, 30}},
        {30, 2, start},
        {25, 3, {0, 10, 20, 25}},
        {20, 3, start},
        {5, 4, start},
        {5, -1, start},
    };
    graph.setAutoScaleType(AutoScaleType::Relative);
    for (const Case& c : cases) {
        setLimits(start);
        graph.setLimit(c.value, c.index);
        EXPECT_EQ(limits(), c.expected) << c.value << " at " << c.index;
        setLimits(start);
        graph.setLimitPlain(c.value, c.index);
        EXPECT_EQ(limits(), c.expected) << c.value << " at " << c.index;
    }
}

TEST_F(Limits, PlainEditIgnoresTheSymmetricModes) {
    graph.setGraphType(GraphType::Circle);
    graph.setLimitPlain(5, 3);
    EXPECT_EQ(limits(), (Range{-1, 1, -1, 5}));
}

TEST_F(Limits, AreSymmetricForAnyScalingButTheRelative) {
    graph.setAutoScaleType(2);
    graph.autoScale({0, 10, 20, 40});
    EXPECT_EQ(limits(), symmetricRange(44));
    // An edit, however, is independent for every scaling but the absolute one.
    graph.setLimit(7, 3);
    EXPECT_EQ(limits(), (Range{-44, 44, -44, 7}));
}

TEST_F(Limits, OfAnotherGraphTypeScaleAsACircleAndAreEditedAsAGrid) {
    graph.setAutoScaleType(AutoScaleType::Relative);
    graph.setGraphType(2);
    EXPECT_EQ(limits(), (Range{-1, 1, -1, 1}));
    graph.autoScale({0, 10, 20, 40});
    EXPECT_EQ(limits(), symmetricRange(44));
    graph.setLimit(7, 3);
    EXPECT_EQ(limits(), (Range{-44, 44, -44, 7}));
    graph.layoutAxisStrips(canvas.ref());
    graph.hitTestAxisStrips({150, 250});
    graph.setLimits({2, 3, 4, 5});
    EXPECT_EQ(limits(), (Range{2, 3, -44, 7}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
