#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Layout = LaidOutGraph;

Rectangle graphRectOf(double width, double height) {
    return Layout(width, height).graph.state().graphRect;
}

/// The width of the plot with legend lines for so many channels.
double widthWithLegend(std::int32_t channelCount, double width = 300, double height = 300) {
    Layout plot;
    plot.graph.setSingleAxis(false);
    plot.graph.invalidateLayout();
    plot.graph.layout(plot.canvas.ref(), {0, 0, width, height}, channelCount);
    return widthOf(plot.graph.state().graphRect);
}

TEST(Layout, LosesThreeMarginsOfTheShorterSide) {
    // 300 - 2 * 40 = 220, less one margin more: 180 round 200, 150.
    EXPECT_EQ(graphRectOf(400, 300), (Rectangle{110, 60, 290, 240}));
    EXPECT_EQ(graphRectOf(300, 400), (Rectangle{60, 110, 240, 290}));
}

TEST(Layout, NarrowAreaTurnsThePlotOver) {
    // 100 - 2 * 40 = 20, less one margin more: 20 - 40 = -20, round 100, 50.
    EXPECT_EQ(graphRectOf(200, 100), (Rectangle{110, 60, 90, 40}));
}

TEST(Layout, LegendLinesTakeTheirRoomFromThePlot) {
    // Gap 40. Five channels need 6 * 16 = 96: 220 - 56 * 2 = 108, less 40.
    EXPECT_EQ(widthWithLegend(5), 68);
    // One channel needs 2 * 16 = 32: nothing is taken off.
    EXPECT_EQ(widthWithLegend(1), 180);
}

TEST(Layout, GapBesideThePlotIsRounded) {
    // (301 - 220) / 2 = 40.5, so 41. Two channels need 48: 220 - 7 * 2 = 206, less 40.
    EXPECT_EQ(widthWithLegend(2, 301), 166);
}

TEST(Layout, GapOfTheLegendIsBesideThePlotWhateverTheHeight) {
    // Five channels need 96. 400 by 300: (400 - 220) / 2 = 90, so 220 - 6 * 2 = 208, less 40.
    EXPECT_EQ(widthWithLegend(5, 400, 300), 168);
    // 300 by 400: the gap is 40 as in a square.
    EXPECT_EQ(widthWithLegend(5, 300, 400), 68);
    // 300 by 301: (300 - 220) / 2 = 40; two channels need 48: 220 - 8 * 2 = 204, less 40.
    EXPECT_EQ(widthWithLegend(2, 300, 301), 164);
}

TEST(Layout, MeasuresALineOfTheLegendInTheFontAsItIs) {
    Layout plot;
    plot.canvas.recordMeasures();
    plot.graph.setSingleAxis(false);
    plot.layOut();
    EXPECT_EQ(plot.canvas.taken(), (Lines{"IHostCanvas.TextHeight(\"Aj\") -> 16"}));
}

TEST(Layout, KeepsTheStorageOfItsLists) {
    Layout plot;
    const GraphState& state = plot.graph.state();
    const auto storage = [&] {
        return std::array<const void*, 6>{state.gridUnits.data(), state.ringUnits.data(),
                                          state.gridLines.data(), state.edgeLines.data(),
                                          state.ringBoxes.data(), state.crossLines.data()};
    };
    const auto before = storage();
    plot.layOut(400, 500);
    EXPECT_EQ(storage(), before);
}

TEST(Layout, LegendRowTakesNoRoom) {
    Layout plot;
    plot.graph.invalidateLayout();
    plot.graph.layout(plot.canvas.ref(), {0, 0, 300, 300}, 99);
    EXPECT_EQ(widthOf(plot.graph.state().graphRect), 180);
}

TEST(Layout, NeedBeyondAnyIntegerTakesNothingOff) {
    // 2147483648 * 16 has no 32-bit integer and counts as the smallest one.
    EXPECT_EQ(widthWithLegend(std::numeric_limits<std::int32_t>::max()), 180);
}

TEST(Layout, SameSizeElsewhereChangesNothing) {
    Layout plot;
    plot.graph.layout(plot.canvas.ref(), {50, 60, 350, 360}, 0);
    EXPECT_EQ(plot.graph.state().canvasRect, (Rectangle{0, 0, 300, 300}));
    plot.graph.invalidateLayout();
    plot.graph.layout(plot.canvas.ref(), {50, 60, 350, 360}, 0);
    EXPECT_EQ(plot.graph.state().canvasRect, (Rectangle{50, 60, 350, 360}));
    EXPECT_EQ(plot.graph.state().graphRect, (Rectangle{110, 120, 290, 300}));
    EXPECT_TRUE(plot.graph.state().layoutValid);
}

TEST(Layout, AnotherSizeIsTakenWithoutBeingAsked) {
    Layout plot;
    plot.graph.layout(plot.canvas.ref(), {0, 0, 400, 300}, 0);
    EXPECT_EQ(plot.graph.state().graphRect, (Rectangle{110, 60, 290, 240}));
}

TEST(Layout, ClearanceBoxIsItsShareOfThePlot) {
    Layout plot;
    plot.setLimits({-10, 20, -30, 10});
    plot.graph.setClearanceRadiusX(5);
    plot.graph.setClearanceRadiusY(2.5);
    plot.layOut();
    // 5 of 10 and 2.5 of 10, the nearer limits: half and a quarter of 180.
    EXPECT_EQ(plot.graph.state().clearanceRect, (Rectangle{105, 127.5, 195, 172.5}));
    plot.graph.setClearanceRadiusX(50);
    plot.layOut();
    EXPECT_EQ(plot.graph.state().clearanceRect, (Rectangle{60, 127.5, 240, 172.5}));
    plot.graph.setClearanceRadiusY(0);
    plot.layOut();
    EXPECT_EQ(plot.graph.state().clearanceRect, (Rectangle{0, 0, 0, 0}));
}

TEST(Layout, ClearanceWithALimitAtZeroHasNoShare) {
    Layout plot;
    plot.setLimits({0, 20, -10, 10});
    plot.graph.setClearanceRadiusX(5);
    plot.graph.setClearanceRadiusY(5);
    plot.layOut();
    EXPECT_EQ(plot.graph.state().clearanceRect, (Rectangle{150, 105, 150, 195}));
}

TEST(Layout, GridLinesGoThroughTheViewButNotThroughTheFlip) {
    Layout plot;
    plot.graph.setTickCount(0);
    plot.layOut();
    EXPECT_EQ(plot.graph.state().gridLines,
              (std::vector<Segment>{{{240, 60}, {240, 240}}, {{60, 240}, {240, 240}}}));
    EXPECT_EQ(plot.graph.state().edgeLines,
              (std::vector<Segment>{{{60, 60}, {60, 240}}, {{60, 240}, {240, 240}}}));
    plot.graph.setZoom(2);
    plot.graph.panBy(0, 10);
    plot.layOut();
    // (60 - 150) * 2 + 150 = -30 and (60 + 10 - 150) * 2 + 150 = -10.
    EXPECT_EQ(plot.graph.state().edgeLines[0], (Segment{{-30, -10}, {-30, 350}}));
}

TEST(Layout, RingsAreCirclesRoundThePlotCentre) {
    Layout plot(400, 300);
    plot.graph.setTickCount(3);
    plot.layOut(400, 300);
    // 180 * 3/4, 2/4 and 1/4, round 200, 150.
    EXPECT_EQ(plot.graph.state().ringBoxes, (std::vector<Rectangle>{{132.5, 82.5, 267.5, 217.5},
                                                                    {155, 105, 245, 195},
                                                                    {177.5, 127.5, 222.5, 172.5}}));
}

TEST(LimitLabels, StandAtTheCornersOfThePlot) {
    Layout plot;
    plot.graph.layoutLimitLabels(plot.canvas.ref());
    const auto& labels = plot.graph.limitLabels();
    // "-1" is 16 pixels wide, "1" is 8; both are 16 high.
    const Rectangle boxes[] = {
        {60, 240, 76, 256}, {232, 240, 240, 256}, {44, 224, 60, 240}, {44, 60, 60, 68}};
    const double values[] = {-1, 1, -1, 1};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(labels[i].box, boxes[i]) << i;
        EXPECT_EQ(labels[i].value, values[i]) << i;
        EXPECT_EQ(labels[i].vertical, i >= 2) << i;
        EXPECT_EQ(labels[i].index, static_cast<std::int32_t>(i)) << i;
    }
}

TEST(LimitLabels, EndAtTheirCornerWhenBothLimitsAreEqual) {
    Layout plot;
    plot.setLimits({1, 1, 1, 1});
    plot.graph.layoutLimitLabels(plot.canvas.ref());
    const auto& labels = plot.graph.limitLabels();
    EXPECT_EQ(labels[0].box, (Rectangle{52, 240, 60, 256}));
    EXPECT_EQ(labels[1].box, (Rectangle{232, 240, 240, 256}));
    // Lowered by its width of 8 below the lower corner, as the upper one is below its own.
    EXPECT_EQ(labels[2].box, (Rectangle{44, 240, 60, 248}));
    EXPECT_EQ(labels[3].box, (Rectangle{44, 60, 60, 68}));
}

TEST(LimitLabels, KeepTheirHoverFlags) {
    Layout plot;
    plot.graph.layoutLimitLabels(plot.canvas.ref());
    plot.graph.hitTestLimitLabels({65, 245});
    plot.graph.layoutLimitLabels(plot.canvas.ref());
    EXPECT_TRUE(plot.graph.limitLabels()[0].hovered);
}

TEST(LimitLabels, AreNotVerticalBeforeTheFirstLayout) {
    const OrbitGraph fresh;
    for (const AxisLimitLabel& label : fresh.limitLabels()) {
        EXPECT_FALSE(label.vertical);
        EXPECT_EQ(label.index, 0);
        EXPECT_EQ(label.box, EmptyRectangle);
    }
}

TEST(LimitLabels, FlipByTheHeightAloneInAnAreaThatStartsElsewhere) {
    Layout plot;
    plot.graph.invalidateLayout();
    plot.graph.layout(plot.canvas.ref(), {0, 50, 300, 350}, 0);
    plot.graph.layoutLimitLabels(plot.canvas.ref());
    // The plot lies from 110 to 290; its lower edge flips to 300 - 110 = 190, without the 50.
    EXPECT_EQ(plot.graph.limitLabels()[0].box, (Rectangle{60, 190, 76, 206}));
}

TEST(AxisStrips, LieUnderAndLeftOfThePlotWhateverTheView) {
    Layout plot;
    plot.graph.setZoom(2);
    plot.graph.layoutAxisStrips(plot.canvas.ref());
    EXPECT_EQ(plot.graph.state().xStrip, (Rectangle{60, 240, 240, 256}));
    EXPECT_EQ(plot.graph.state().yStrip, (Rectangle{44, 60, 60, 240}));
}

TEST(AxisStrips, AreAsHighAsALineOfText) {
    Layout plot;
    plot.canvas.recordMeasures();
    plot.graph.layoutAxisStrips(plot.canvas.ref());
    EXPECT_EQ(plot.canvas.taken(), (Lines{"IHostCanvas.TextHeight(\"Aj\") -> 16"}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
