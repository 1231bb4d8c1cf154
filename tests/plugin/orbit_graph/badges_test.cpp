#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

// A badge reaches 16 * 0.7 = 11.2 pixels to each side of its place.
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
    EXPECT_EQ(squares(45, 10, -90), (Lines{"IHostCanvas.Rectangle(228, 48, 251, 71)",
                                           "IHostCanvas.Rectangle(160, 48, 183, 71)",
                                           "IHostCanvas.Rectangle(48, 138, 71, 161)"}));
}

TEST_F(Badges, RunAlongTheCircle) {
    graph.setGraphType(GraphType::Circle);
    // 30 degrees: 150 + 90 * 0.5 = 195, 150 - 90 * 0.866 = 72.06. 90: 240 150. 180: 150 240.
    EXPECT_EQ(squares(30, 90, 180), (Lines{"IHostCanvas.Rectangle(183, 60, 206, 83)",
                                           "IHostCanvas.Rectangle(228, 138, 251, 161)",
                                           "IHostCanvas.Rectangle(138, 228, 161, 251)"}));
}

TEST_F(Badges, LeaveTheirColoursBehind) {
    graph.drawSensorBadges(canvas.ref());
    const Lines lines = canvas.taken();
    EXPECT_EQ(
        Lines(lines.end() - 7, lines.end()),
        (Lines{"IHostPen.SetStyle(0)", "IHostPen.SetColor(1)", "IHostBrush.SetStyle(0)",
               "IHostBrush.SetColor(3)", "IHostCanvas.Rectangle(138, 48, 161, 71)",
               "IHostFont.SetColor(1)", "IHostCanvas.TextRect(138, 48, 161, 71, \"T\", 81924)"}));
}

TEST_F(Badges, HaveTheSizeOfANegativeFontHeightToo) {
    canvas.host.description.canvas.fontHeight = -16;
    EXPECT_EQ(squares(0, 0, 0)[0], "IHostCanvas.Rectangle(138, 48, 161, 71)");
}

TEST_F(Badges, LieOnTheSecondEdgeOfAPlotThatIsTurnedOver) {
    layOut(200, 100);
    // The plot is 110 60 90 40: lower bounds first, then the upper ones, so 90 40.
    EXPECT_EQ(squares(0, 90, 200), Lines(3, "IHostCanvas.Rectangle(78, 28, 101, 51)"));
}

TEST_F(Badges, AppearWithoutARange) {
    setLimits({0, 0, 0, 0});
    EXPECT_EQ(squares(0, 0, 0).size(), 3U);
}

TEST_F(Badges, DisappearWithAnAngleThatIsNoNumber) {
    // Their places are no numbers; such a box passes the guard, which it lies neither below nor
    // above, and reaches the canvas as the smallest integers.
    const Lines lines = squares(HUGE_VAL, 0, 0);
    EXPECT_EQ(lines[0],
              "IHostCanvas.Rectangle(-2147483648, -2147483648, -2147483648, "
              "-2147483648)");
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
