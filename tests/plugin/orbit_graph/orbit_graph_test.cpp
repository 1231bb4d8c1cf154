#include "plugin/orbit_graph/orbit_graph.h"

#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(OrbitGraph, StartsWithTheDocumentedView) {
    const GraphState state = OrbitGraph().state();
    EXPECT_EQ(state.scaleX, 1.0);
    EXPECT_EQ(state.scaleY, 1.0);
    EXPECT_EQ(state.panX, 0);
    EXPECT_EQ(state.panY, 0);
    EXPECT_EQ(state.rotationCos, 1.0);
    EXPECT_EQ(state.rotationSin, 0);
    EXPECT_EQ(state.canvasRect, EmptyRectangle);
    EXPECT_EQ(state.graphRect, EmptyRectangle);
    EXPECT_EQ(state.margin, 40.0);
    EXPECT_EQ(state.clearanceRect, EmptyRectangle);
    EXPECT_EQ(state.legendX, 0);
    EXPECT_EQ(state.legendY, 0);
    EXPECT_TRUE(state.layoutValid);
    EXPECT_EQ(state.pointer, (Point{0, 0}));
    EXPECT_FALSE(state.pointerInside);
}

TEST(OrbitGraph, StartsWithoutAMachineAndInBlack) {
    const GraphState state = OrbitGraph().state();
    for (const double zero : {state.xAngle, state.yAngle, state.tachoAngle, state.clearanceRadiusX,
                              state.clearanceRadiusY}) {
        EXPECT_EQ(zero, 0);
    }
    for (const Color color : {state.backgroundColor, state.gridColor, state.textColor,
                              state.axisColor, state.borderColor}) {
        EXPECT_EQ(color, Black);
    }
}

TEST(OrbitGraph, StartsWithNothingUnderThePointer) {
    const GraphState state = OrbitGraph().state();
    EXPECT_EQ(state.xStrip, EmptyRectangle);
    EXPECT_EQ(state.yStrip, EmptyRectangle);
    EXPECT_FALSE(state.xStripHovered);
    EXPECT_FALSE(state.yStripHovered);
    EXPECT_TRUE(state.placedLabels.empty());
    for (const AxisLimitLabel& label : state.limitLabels) {
        EXPECT_EQ(label.value, 0);
        EXPECT_EQ(label.box, EmptyRectangle);
        EXPECT_FALSE(label.hovered);
    }
}

TEST(OrbitGraph, StartsWithTheDocumentedSettings) {
    const OrbitGraph graph;
    EXPECT_FALSE(graph.drawClearance());
    EXPECT_TRUE(graph.singleAxis());
    EXPECT_EQ(graph.clearanceColor(), 16750848U);
    EXPECT_EQ(graph.state().hoverColor, 2973169U);
    EXPECT_EQ(graph.decimals(), 3);
    EXPECT_TRUE(graph.state().darkBackground);
    EXPECT_EQ(graph.tickCount(), 5);
    EXPECT_FALSE(graph.viewAdjustEnabled());
    for (const std::int32_t zero :
         {graph.rotationDirection(), graph.manualLimits(), graph.displayType(), graph.graphType(),
          graph.historyType(), graph.autoScaleType()}) {
        EXPECT_EQ(zero, 0);
    }
    EXPECT_EQ(graph.xMin(), -1.0);
    EXPECT_EQ(graph.xMax(), 1.0);
    EXPECT_EQ(graph.yMin(), -1.0);
    EXPECT_EQ(graph.yMax(), 1.0);
}

TEST(OrbitGraph, StartsWithTheListsOfFiveTicks) {
    const OrbitGraph graph;
    EXPECT_EQ(graph.state().gridUnits.size(), 14U);
    EXPECT_EQ(graph.state().edgeUnits.size(), 2U);
    EXPECT_EQ(graph.state().ringUnits.size(), 6U);
    EXPECT_EQ(graph.state().crossUnits.size(), 2U);
    EXPECT_TRUE(graph.state().gridLines.empty());
    EXPECT_TRUE(graph.state().edgeLines.empty());
    EXPECT_TRUE(graph.state().ringBoxes.empty());
    EXPECT_TRUE(graph.state().crossLines.empty());
}

TEST(OrbitGraph, StartsWithoutAMatchOfThePointer) {
    const NearestSample nearest = OrbitGraph().nearest();
    EXPECT_FALSE(nearest.found);
    EXPECT_EQ(nearest.distance, 0);
    EXPECT_EQ(nearest.x, 0);
    EXPECT_EQ(nearest.y, 0);
    EXPECT_EQ(nearest.extra, 0);
    EXPECT_EQ(nearest.position, (Point{0, 0}));
    EXPECT_EQ(nearest.info, ChannelInfo{});
    EXPECT_EQ(nearest.kind, OrbitKind::Raw);
}

TEST(OrbitGraph, KeepsAnyTickCountAsItStands) {
    OrbitGraph graph;
    for (const std::int32_t count : {-2147483647 - 1, -1, 0, 20, 2147483647}) {
        graph.setTickCount(count);
        EXPECT_EQ(graph.tickCount(), count);
    }
}

TEST(OrbitGraph, KeepsAnyDecimalsAsTheyStand) {
    OrbitGraph graph;
    graph.setDecimals(5000);
    EXPECT_EQ(graph.decimals(), 5000);
    EXPECT_EQ(graph.valueFormat(), L"%.1074f");
}

TEST(OrbitGraph, LaysOutAnewAfterAChangeOfTheView) {
    const auto invalidates = [](auto change) {
        LaidOutGraph plot;
        EXPECT_TRUE(plot.graph.state().layoutValid);
        change(plot.graph);
        return !plot.graph.state().layoutValid;
    };
    EXPECT_TRUE(invalidates([](OrbitGraph& graph) { graph.setZoom(1); }));
    EXPECT_TRUE(invalidates([](OrbitGraph& graph) { graph.panBy(0, 0); }));
    EXPECT_TRUE(invalidates([](OrbitGraph& graph) { graph.setRotation(0); }));
    EXPECT_TRUE(invalidates([](OrbitGraph& graph) { graph.setRotationDirection(0); }));
    EXPECT_TRUE(invalidates([](OrbitGraph& graph) { graph.setTickCount(5); }));
    EXPECT_FALSE(invalidates([](OrbitGraph& graph) { graph.setHistoryType(1); }));
}

TEST(OrbitGraph, AddsUpThePanAndLosesItWithTheDirection) {
    OrbitGraph graph;
    graph.panBy(1, 2);
    graph.panBy(3, 4);
    EXPECT_EQ(graph.state().panX, 4);
    EXPECT_EQ(graph.state().panY, 6);
    graph.setRotationDirection(1);
    EXPECT_EQ(graph.rotationDirection(), 1);
    EXPECT_EQ(graph.state().panX, 0);
    EXPECT_EQ(graph.state().panY, 0);
}

TEST(OrbitGraph, CallsABlackBackgroundDark) {
    OrbitGraph graph;
    graph.setThemeColors(White, 2, 3, 4, 5);
    EXPECT_FALSE(graph.state().darkBackground);
    graph.setThemeColors(Black, 2, 3, 4, 5);
    EXPECT_TRUE(graph.state().darkBackground);
    EXPECT_EQ(graph.state().gridColor, 2U);
    EXPECT_EQ(graph.state().textColor, 3U);
    EXPECT_EQ(graph.state().axisColor, 4U);
    EXPECT_EQ(graph.state().borderColor, 5U);
}

/// Everything that is drawn whatever the data.
Lines frameOf(LaidOutGraph& plot) {
    plot.layOut();
    plot.graph.layoutLimitLabels(plot.canvas.ref());
    plot.graph.drawFrame(plot.canvas.ref());
    plot.graph.drawScaleLabels(plot.canvas.ref());
    plot.graph.drawAxisTitles(plot.canvas.ref(), L"um");
    plot.graph.drawSensorBadges(plot.canvas.ref());
    return plot.canvas.taken();
}

TEST(OrbitGraph, KeepsARotationThatIsNeverDrawn) {
    LaidOutGraph plot;
    const Lines before = frameOf(plot);
    plot.graph.setRotation(1.5);
    EXPECT_EQ(plot.graph.state().rotationCos, std::cos(1.5));
    EXPECT_EQ(plot.graph.state().rotationSin, std::sin(1.5));
    EXPECT_EQ(frameOf(plot), before);
}

TEST(OrbitGraph, LeavesTheTracesOutOfTheView) {
    LaidOutGraph plot;
    plot.graph.setZoom(2);
    plot.graph.panBy(5, 5);
    plot.layOut();
    EXPECT_EQ(plot.traces({rawCurve({{0.5, 0.5}, {-0.5, 0}})}),
              (Lines{"IHostPen.SetColor(7)", "IHostCanvas.MoveTo(195, 105)",
                     "IHostCanvas.LineTo(105, 150)"}));
}

TEST(OrbitGraph, OpensTheGateOfTheViewByNothing) {
    LaidOutGraph plot;
    plot.graph.setZoom(2);
    plot.graph.panBy(1, 1);
    plot.graph.setRotation(1);
    plot.graph.setRotationDirection(1);
    plot.graph.setGraphType(GraphType::Circle);
    plot.graph.setPointerInside(true);
    frameOf(plot);
    EXPECT_FALSE(plot.graph.viewAdjustEnabled());
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
