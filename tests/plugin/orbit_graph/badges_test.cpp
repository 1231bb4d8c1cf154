#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

// A badge reaches 21 * 0.7 = 14.7 pixels to each side of its place.
struct Badges : testing::Test, LaidOutGraph {
    Lines squares(double x, double y, double tacho) {
        graph.setXAngle(x);
        graph.setYAngle(y);
        graph.setTachoAngle(tacho);
        graph.drawSensorBadges(canvas.ref());
        return canvas.taken("IHostCanvas.Rectangle");
    }
};

TEST_F(Badges, RunAlongTheFrameOfAGridClockwiseFromTheTop) {
    // 45 degrees: exactly the corner, 240 60. 10 degrees: 150 + 127.28 * sin 10 = 172.1 on the
    // top edge. -90 degrees: 127.28 to the left, held at 60.
    EXPECT_EQ(squares(45, 10, -90), (Lines{"IHostCanvas.Rectangle(225, 45, 254, 74)",
                                           "IHostCanvas.Rectangle(157, 45, 186, 74)",
                                           "IHostCanvas.Rectangle(45, 135, 74, 164)"}));
}

TEST_F(Badges, RunAlongTheCircle) {
    graph.setGraphType(GraphType::Circle);
    // 30 degrees: 150 + 90 * 0.5 = 195, 150 - 90 * 0.866 = 72.06. 90: 240 150. 180: 150 240.
    EXPECT_EQ(squares(30, 90, 180), (Lines{"IHostCanvas.Rectangle(180, 57, 209, 86)",
                                           "IHostCanvas.Rectangle(225, 135, 254, 164)",
                                           "IHostCanvas.Rectangle(135, 225, 164, 254)"}));
}

TEST_F(Badges, LeaveTheirColoursBehind) {
    graph.drawSensorBadges(canvas.ref());
    const Lines lines = canvas.taken();
    EXPECT_EQ(
        Lines(lines.end() - 7, lines.end()),
        (Lines{"IHostPen.SetStyle(0)", "IHostPen.SetColor(1)", "IHostBrush.SetStyle(0)",
               "IHostBrush.SetColor(3)", "IHostCanvas.Rectangle(135, 45, 164, 74)",
               "IHostFont.SetColor(1)", "IHostCanvas.TextRect(135, 45, 164, 74, \"T\", 81924)"}));
}

TEST_F(Badges, HaveTheSizeOfANegativeFontHeightToo) {
    canvas.host.description.canvas.fontHeight = -21;
    EXPECT_EQ(squares(0, 0, 0)[0], "IHostCanvas.Rectangle(135, 45, 164, 74)");
}

TEST_F(Badges, LieOnTheSecondEdgeOfAPlotThatIsTurnedOver) {
    layOut(200, 100);
    // The plot is 110 60 90 40: lower bounds first, then the upper ones, so 90 40.
    EXPECT_EQ(squares(0, 90, 200), Lines(3, "IHostCanvas.Rectangle(75, 25, 104, 54)"));
}

TEST_F(Badges, AppearWithoutARange) {
    setLimits({0, 0, 0, 0});
    EXPECT_EQ(squares(0, 0, 0), Lines(3, "IHostCanvas.Rectangle(135, 45, 164, 74)"));
}

TEST_F(Badges, GoToTheSmallestIntegersWithAnAngleThatIsNoNumber) {
    // Their places are no numbers; such a box passes the guard, which it lies neither below nor
    // above, and reaches the canvas as the smallest integers.
    const Lines lines = squares(HUGE_VAL, 0, 0);
    EXPECT_EQ(lines[0],
              "IHostCanvas.Rectangle(-2147483648, -2147483648, -2147483648, "
              "-2147483648)");
}

TEST_F(Badges, RunAlongTheCircleForAnyTypeButTheGrid) {
    graph.setGraphType(2);
    EXPECT_EQ(squares(30, 30, 30), Lines(3, "IHostCanvas.Rectangle(180, 57, 209, 86)"));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
