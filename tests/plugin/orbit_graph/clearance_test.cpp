#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Clearance : testing::Test, LaidOutGraph {
    Lines ellipse(double radiusX, double radiusY) {
        graph.setDrawClearance(true);
        graph.setClearanceRadiusX(radiusX);
        graph.setClearanceRadiusY(radiusY);
        graph.drawClearanceEllipse(canvas.ref());
        return canvas.taken();
    }
};

TEST_F(Clearance, IsAMoveAndALineForEachFurtherDegree) {
    const Lines lines = ellipse(0.5, 0.25);
    ASSERT_EQ(lines.size(), 1U + 360U);
    EXPECT_EQ(lines[0], "IHostPen.SetColor(16750848)");
    EXPECT_EQ(lines[1], "IHostCanvas.MoveTo(195, 150)");
    // A quarter turn on: 90 * 0.25 = 22.5 above the centre, at 127.5.
    EXPECT_EQ(lines[91], "IHostCanvas.LineTo(150, 127)");
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", lines).size(), 359U);
    // It ends at 359 degrees, 150 + 44.99 and 150 + 0.39, and is not closed.
    EXPECT_EQ(lines[360], "IHostCanvas.LineTo(194, 150)");
}

TEST_F(Clearance, OfNoSizeIsAPointAtTheOriginOfTheData) {
    const Lines lines = ellipse(0, 0);
    EXPECT_EQ(callsOf("IHostCanvas.MoveTo", lines), (Lines{"IHostCanvas.MoveTo(150, 150)"}));
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", lines), Lines(359, "IHostCanvas.LineTo(150, 150)"));
}

TEST_F(Clearance, OfNoSizeLiesOnTheNearestLimitWhenZeroIsOutside) {
    setLimits({1, 2, 1, 2});
    EXPECT_EQ(callsOf("IHostCanvas.", ellipse(0, 0)), Lines(360, "IHostCanvas.MoveTo(60, 240)"));
}

TEST_F(Clearance, IsLiftedOffWhereItRunsOutOfThePlot) {
    const Lines lines = ellipse(1.9, 0.5);
    // |cos| is at most 1 / 1.9 = 0.526 from 59 to 121 and from 239 to 301 degrees.
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", lines).size(), 63U + 63U);
    EXPECT_EQ(callsOf("IHostCanvas.MoveTo", lines).size(), 360U - 126U);
    EXPECT_EQ(lines[1], "IHostCanvas.MoveTo(240, 150)");
}

TEST_F(Clearance, IsNotDrawnUnlessAskedForAndWithoutARange) {
    graph.drawClearanceEllipse(canvas.ref());
    EXPECT_TRUE(canvas.taken().empty());
    setLimits({0, 0, 0, 0});
    EXPECT_TRUE(ellipse(0.5, 0.5).empty());
    setLimits({-1, 1, 2, 2});
    EXPECT_TRUE(ellipse(0.5, 0.5).empty());
    setLimits({2, 2, -1, 1});
    EXPECT_TRUE(ellipse(0.5, 0.5).empty());
}

TEST_F(Clearance, KnowsNoView) {
    const Lines before = ellipse(0.5, 0.25);
    graph.panBy(10, 10);
    graph.setZoom(2);
    EXPECT_EQ(ellipse(0.5, 0.25), before);
}

TEST_F(Clearance, HasTheColourOfItsSetting) {
    graph.setClearanceColor(77);
    EXPECT_EQ(graph.clearanceColor(), 77U);
    EXPECT_EQ(ellipse(0.5, 0.5)[0], "IHostPen.SetColor(77)");
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
