#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Pointer : testing::Test, LaidOutGraph {
    Pointer() {
        graph.layoutLimitLabels(canvas.ref());
        graph.layoutAxisStrips(canvas.ref());
    }

    /// The index of the hovered label, or -1.
    int hoveredLabel() const {
        for (int i = 0; i < 4; ++i) {
            if (graph.limitLabels()[static_cast<std::size_t>(i)].hovered) return i;
        }
        return -1;
    }
};

TEST_F(Pointer, LeavingTakesItBackToTheOrigin) {
    graph.setPointer({12, 34});
    graph.setPointerInside(true);
    EXPECT_EQ(graph.state().pointer, (Point{12, 34}));
    graph.pointerLeft();
    EXPECT_EQ(graph.state().pointer, (Point{0, 0}));
    EXPECT_FALSE(graph.pointerInside());
}

TEST_F(Pointer, HitsStripsWithTheirEdges) {
    // The x strip goes from 60, 240 to 240, 256 and the y strip from 44, 60 to 60, 240.
    struct Case {
        Point point;
        bool x;
        bool y;
    };
    const Case cases[] = {{{150, 250}, true, false},  {{240, 256}, true, false},
                          {{150, 257}, false, false}, {{44, 60}, false, true},
                          {{43.9, 60}, false, false}, {{60, 240}, true, true}};
    for (const Case& c : cases) {
        graph.hitTestAxisStrips(c.point);
        EXPECT_EQ(graph.xStripHovered(), c.x) << c.point.x << " " << c.point.y;
        EXPECT_EQ(graph.yStripHovered(), c.y) << c.point.x << " " << c.point.y;
        EXPECT_EQ(graph.anyAxisStripHovered(), c.x || c.y);
    }
}

TEST_F(Pointer, HitsTheFirstLabelAlone) {
    graph.hitTestLimitLabels({65, 250});
    EXPECT_EQ(hoveredLabel(), 0);
    graph.hitTestLimitLabels({235, 250});
    EXPECT_EQ(hoveredLabel(), 1);
    // The corner that labels 0 and 2 share.
    graph.hitTestLimitLabels({60, 240});
    EXPECT_EQ(hoveredLabel(), 0);
    EXPECT_FALSE(graph.limitLabels()[2].hovered);
    graph.hitTestLimitLabels({44, 60});
    EXPECT_EQ(hoveredLabel(), 3);
    EXPECT_TRUE(graph.anyLimitLabelHovered());
}

TEST_F(Pointer, BesideAllLabelsClearsTheirFlags) {
    graph.hitTestLimitLabels({65, 250});
    graph.hitTestLimitLabels({150, 150});
    EXPECT_FALSE(graph.anyLimitLabelHovered());
}

TEST_F(Pointer, HitsNothingBeforeALayout) {
    OrbitGraph fresh;
    fresh.hitTestLimitLabels({0, 0});
    fresh.hitTestAxisStrips({0, 0});
    EXPECT_FALSE(fresh.anyLimitLabelHovered());
    EXPECT_FALSE(fresh.anyAxisStripHovered());
}

TEST_F(Pointer, LimitsIncludeTheirBounds) {
    EXPECT_TRUE(graph.isInLimits({1, -1}));
    EXPECT_TRUE(graph.isInLimits({0, 0}));
    EXPECT_FALSE(graph.isInLimits({1.5, 0}));
    EXPECT_FALSE(graph.isInLimits({0, -1.5}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
