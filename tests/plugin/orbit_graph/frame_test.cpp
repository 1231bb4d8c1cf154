#include "tests/plugin/orbit_graph/graph_fixture.h"
#include "tests/plugin/orbit_graph/reentrant_host.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Frame : testing::Test, LaidOutGraph {
    Lines frame() {
        layOut();
        graph.drawFrame(canvas.ref());
        return canvas.taken();
    }

    Lines frame(std::string_view operation) { return callsOf(operation, frame()); }
};

TEST_F(Frame, GridLiesOnASquareWithABorder) {
    graph.setTickCount(0);
    const Lines lines = frame();
    const Lines expected{"IHostPen.SetStyle(0)", "IHostPen.SetColor(5)", "IHostBrush.SetStyle(0)",
                         "IHostBrush.SetColor(1)", "IHostCanvas.Rectangle(60, 60, 240, 240)",
                         "IHostPen.SetStyle(0)", "IHostPen.SetColor(2)",
                         // Without ticks one line each way, at the right and the lower edge.
                         "IHostCanvas.MoveTo(240, 60)", "IHostCanvas.LineTo(240, 240)",
                         "IHostCanvas.MoveTo(60, 240)", "IHostCanvas.LineTo(240, 240)",
                         "IHostPen.SetColor(4)"};
    EXPECT_EQ(Lines(lines.begin() + 5, lines.begin() + 17), expected);
}

TEST_F(Frame, CircleIsADiscWithRingsACrossAndItsTwoEdges) {
    graph.setGraphType(GraphType::Circle);
    graph.setTickCount(1);
    const Lines lines = frame();
    const Lines expected{
        "IHostPen.SetStyle(0)",
        "IHostPen.SetColor(3)",  // the text's colour, where a square has the border's
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(1)",
        "IHostCanvas.Ellipse(60, 60, 240, 240)",
        "IHostPen.SetStyle(0)",
        "IHostPen.SetStyle(0)",
        "IHostPen.SetColor(2)",
        "IHostBrush.SetStyle(1)",
        "IHostCanvas.Ellipse(105, 105, 195, 195)",  // half the diameter
        "IHostPen.SetColor(2)",
        "IHostCanvas.MoveTo(60, 150)",
        "IHostCanvas.LineTo(240, 150)",
        "IHostCanvas.MoveTo(150, 60)",
        "IHostCanvas.LineTo(150, 240)",
        "IHostPen.SetColor(4)",
        "IHostCanvas.MoveTo(60, 60)",
        "IHostCanvas.LineTo(60, 240)",
        "IHostCanvas.MoveTo(60, 240)",
        "IHostCanvas.LineTo(240, 240)"};
    EXPECT_EQ(Lines(lines.begin() + 5, lines.begin() + 25), expected);
}

TEST_F(Frame, CircleWithoutTicksHasNoRing) {
    graph.setGraphType(GraphType::Circle);
    graph.setTickCount(0);
    EXPECT_EQ(frame("IHostCanvas.Ellipse"), (Lines{"IHostCanvas.Ellipse(60, 60, 240, 240)"}));
}

TEST_F(Frame, GridOfFiveTicksHasSevenLinesEachWay) {
    // Two ends of 2 * 7 lines and of 2 edges.
    EXPECT_EQ(frame("IHostCanvas.LineTo").size(), 14U + 2U);
}

TEST_F(Frame, CircleOfFiveTicksHasASixthRingOfNoSize) {
    graph.setGraphType(GraphType::Circle);
    const Lines ellipses = frame("IHostCanvas.Ellipse");
    ASSERT_EQ(ellipses.size(), 1U + 6U);
    // 1.7e-16 of 180 pixels wide: its left edge is the last number below 150, which truncates to
    // 149.
    EXPECT_EQ(ellipses[6], "IHostCanvas.Ellipse(149, 149, 150, 150)");
}

TEST_F(Frame, LeavesPenBrushAndFontInTheAxisAndTextColours) {
    const Lines lines = frame();
    EXPECT_EQ(callsOf("IHostPen.SetColor", lines).back(), "IHostPen.SetColor(4)");
    EXPECT_EQ(callsOf("IHostPen.SetWidth", lines),
              (Lines{"IHostPen.SetWidth(2)", "IHostPen.SetWidth(1)"}));
    EXPECT_EQ(callsOf("IHostBrush.SetStyle", lines).back(), "IHostBrush.SetStyle(0)");
    EXPECT_EQ(callsOf("IHostBrush.SetColor", lines).back(), "IHostBrush.SetColor(4)");
    EXPECT_EQ(lines.back(), "IHostFont.SetColor(3)");
}

TEST_F(Frame, RunsWithAPlotThatIsTurnedOver) {
    layOut(200, 100);
    graph.drawFrame(canvas.ref());
    const Lines lines = canvas.taken();
    // The plot is 110 60 90 40, with its edges the wrong way round.
    EXPECT_EQ(callsOf("IHostCanvas.Rectangle", lines),
              (Lines{"IHostCanvas.Rectangle(110, 60, 90, 40)"}));
    EXPECT_EQ(callsOf("IHostCanvas.Arc", lines).size(), 1U);
}

TEST_F(Frame, EndsWithItsOwnLinesWhenAHostLaysOutAnewFromInsideACall) {
    for (const std::int32_t type : {GraphType::Grid, GraphType::Circle}) {
        graph.setGraphType(type);
        graph.setTickCount(5);
        const Lines whole = frame();
        ReentrantHost host(HostKit::operation("IHostCanvas.MoveTo"), [&] {
            graph.setTickCount(0);
            graph.layout(nullptr, {0, 0, 500, 500}, 0);
            layOut();
        });
        canvas.host.gate.watch(&host, HostKit::groups({HostKit::CallGroup::Draw}));
        graph.drawFrame(canvas.ref());
        EXPECT_EQ(host.lines, whole);
        canvas.host.record(HostKit::groups({HostKit::CallGroup::Draw}));
    }
}

TEST_F(Frame, HasADiscForAnyTypeButTheGrid) {
    graph.setGraphType(2);
    graph.setTickCount(0);
    EXPECT_EQ(frame("IHostCanvas.Ellipse"), (Lines{"IHostCanvas.Ellipse(60, 60, 240, 240)"}));
    EXPECT_TRUE(frame("IHostCanvas.Rectangle").empty());
}

TEST_F(Frame, HasItsArrowWithoutARange) {
    setLimits({0, 0, 0, 0});
    EXPECT_EQ(frame("IHostCanvas.Arc"),
              (Lines{"IHostCanvas.Arc(180, 120, 240, 60, 238, 79, 220, 61)"}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
