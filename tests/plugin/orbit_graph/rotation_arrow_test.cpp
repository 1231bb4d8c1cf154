#include "plugin/orbit_graph/rotation_arrow.h"

#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct RotationArrow : testing::Test, LaidOutGraph {
    Lines arrow(std::int32_t direction) {
        graph.setRotationDirection(direction);
        layOut();
        drawRotationArrow(canvas.ref(), graph.state());
        return canvas.taken("IHostCanvas.");
    }
};

constexpr auto Arc = "IHostCanvas.Arc(180, 120, 240, 60, 238, 79, 220, 61)";

TEST_F(RotationArrow, FillsTheUpperRightNinthOfThePlot) {
    const RotationArc arc = rotationArc(graph.state());
    EXPECT_EQ(arc.box, (Rectangle{180, 60, 240, 120}));
    // Radius 30 round 210, 90; cos 20 = 0.93969, sin 20 = 0.34202.
    EXPECT_NEAR(arc.start.x, 238.1908, 1e-4);
    EXPECT_NEAR(arc.start.y, 79.7394, 1e-4);
    EXPECT_NEAR(arc.end.x, 220.2606, 1e-4);
    EXPECT_NEAR(arc.end.y, 61.8092, 1e-4);
}

TEST_F(RotationArrow, RoundsTheMiddleOfItsUpperEdge) {
    layOut(301, 301);
    // The plot goes from 60 to 241 and a third of it is 60.33: the middle of the box, at 210.83,
    // goes to 211, which is 0.1667 right of its centre and 30.1667 above it. Turned by 20 degrees:
    // 0.1667 * 0.93969 + 30.1667 * 0.34202 right, 30.1667 * 0.93969 - 0.1667 * 0.34202 above.
    const RotationArc arc = rotationArc(graph.state());
    EXPECT_NEAR(arc.end.x, 210.8333 + 0.1566 + 10.3177, 1e-3);
    EXPECT_NEAR(arc.end.y, 90.1667 - 28.3474 + 0.0570, 1e-3);
}

TEST_F(RotationArrow, PutsTheHeadOnTheUpperEndForDirectionZero) {
    // Turned by 155 degrees (cos -0.90631, sin 0.42262) and moved to 220.26 61.81: (0, 5) goes by
    // 2.11 -4.53, (10, 0) by -9.06 -4.23 and (0, -5) by -2.11 4.53.
    EXPECT_EQ(arrow(0),
              (Lines{Arc, "IHostCanvas.Polygon([220, 61, 222, 57, 211, 57, 218, 66], 4)"}));
}

TEST_F(RotationArrow, PutsTheHeadOnTheLowerEndForDirectionOne) {
    EXPECT_EQ(arrow(1),
              (Lines{Arc, "IHostCanvas.Polygon([238, 79, 233, 81, 242, 88, 242, 77], 4)"}));
}

TEST_F(RotationArrow, LeavesTheHeadAtTheOriginForAnyOtherDirection) {
    for (const std::int32_t direction : {2, -1}) {
        EXPECT_EQ(arrow(direction),
                  (Lines{Arc, "IHostCanvas.Polygon([0, 0, 0, 5, 10, 0, 0, -5], 4)"}));
    }
}

TEST_F(RotationArrow, StandsUprightInAPlotThatIsTurnedOver) {
    layOut(200, 100);
    // The plot lies between 90 40 and 110 60: a third of 20 in its upper right corner.
    const RotationArc arc = rotationArc(graph.state());
    EXPECT_NEAR(arc.box.left, 110 - 20.0 / 3, 1e-12);
    EXPECT_EQ(arc.box.top, 40);
    EXPECT_EQ(arc.box.right, 110);
    EXPECT_NEAR(arc.box.bottom, 40 + 20.0 / 3, 1e-12);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
