#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

// A view that is panned by 10, 5 and zoomed by 2 about the centre of the canvas, 150, 150: x goes
// to 2 x - 130 and y to 2 y - 140. The plot, 60 to 240, goes from -10, -20 to 350, 340.
struct View : testing::Test, LaidOutGraph {
    View() {
        graph.setTickCount(1);
        graph.setZoom(2);
        graph.panBy(10, 5);
        layOut();
        graph.layoutLimitLabels(canvas.ref());
    }

    Lines frame() {
        graph.drawFrame(canvas.ref());
        return canvas.taken("IHostCanvas.");
    }

    Lines labels() {
        graph.drawScaleLabels(canvas.ref());
        return canvas.taken("IHostCanvas.");
    }
};

TEST_F(View, MovesTheSquareItsGridAndItsEdges) {
    EXPECT_EQ(callsOf("IHostCanvas.Rectangle", frame()),
              (Lines{"IHostCanvas.Rectangle(-10, -20, 350, 340)"}));
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", frame()),
              (Lines{"IHostCanvas.LineTo(350, 340)", "IHostCanvas.LineTo(350, 340)",
                     "IHostCanvas.LineTo(170, 340)", "IHostCanvas.LineTo(350, 160)",
                     "IHostCanvas.LineTo(-10, 340)", "IHostCanvas.LineTo(350, 340)"}));
}

TEST_F(View, MovesTheDiscItsRingsAndItsCross) {
    graph.setGraphType(GraphType::Circle);
    // The one ring, 105 to 195, goes from 80, 70 to 260, 250.
    EXPECT_EQ(callsOf("IHostCanvas.Ellipse", frame()),
              (Lines{"IHostCanvas.Ellipse(-10, -20, 350, 340)",
                     "IHostCanvas.Ellipse(80, 70, 260, 250)"}));
    const Lines lines = callsOf("IHostCanvas.LineTo", frame());
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 2),
              (Lines{"IHostCanvas.LineTo(350, 160)", "IHostCanvas.LineTo(170, 340)"}));
}

TEST_F(View, MovesTheArrow) {
    // A third of 360 in the corner: radius 60 round 290, 40. 290 + 60 cos 20 = 346.4,
    // 40 - 60 sin 20 = 19.5; 290 + 60 sin 20 = 310.5, 40 - 60 cos 20 = -16.4.
    EXPECT_EQ(callsOf("IHostCanvas.Arc", frame()),
              (Lines{"IHostCanvas.Arc(230, 100, 350, -20, 346, 19, 310, -16)"}));
}

TEST_F(View, MovesTheNumbersOfTheScales) {
    // Texts keep their size. The ticks began at 146, 240 and at 44, 154; the limits at 60, 240, at
    // 232, 240, at 44, 240 and at 44, 68.
    EXPECT_EQ(labels(), (Lines{"IHostCanvas.TextRect(162, 340, 170, 356, \"0\", 256)",
                               "IHostCanvas.TextOut(-42, 168, \"0\")",
                               "IHostCanvas.TextRect(-10, 340, 6, 356, \"-1\", 256)",
                               "IHostCanvas.TextRect(334, 340, 342, 356, \"1\", 256)",
                               "IHostCanvas.TextOut(-42, 340, \"-1\")",
                               "IHostCanvas.TextOut(-42, -4, \"1\")"}));
}

TEST_F(View, MovesTheTitlesBeforeTheyAreCentred) {
    graph.drawAxisTitles(canvas.ref(), L"um");
    // 170 - 44 and 340 + 16; -10 - 32 and 160 + 44.
    EXPECT_EQ(canvas.taken("IHostCanvas."),
              (Lines{"IHostCanvas.TextRect(126, 356, 214, 372, \"X axis (um)\", 256)",
                     "IHostCanvas.TextOut(-42, 204, \"Y axis (um)\")"}));
}

TEST_F(View, MovesTheOriginOfTheBadgesAlone) {
    graph.setYAngle(90);
    graph.drawSensorBadges(canvas.ref());
    // The origin, 150, 22.72, goes to 170, -94.56. Turned about the plot's own centre and held in
    // the plot: 170, 60; and a quarter turn on 150 + 244.56, 150 + 20, held at 240, 170.
    EXPECT_EQ(canvas.taken("IHostCanvas.Rectangle"),
              (Lines{"IHostCanvas.Rectangle(155, 45, 184, 74)",
                     "IHostCanvas.Rectangle(225, 155, 254, 184)",
                     "IHostCanvas.Rectangle(155, 45, 184, 74)"}));
}

TEST_F(View, LeavesLegendAndMessagesAlone) {
    graph.drawLegendRow(canvas.ref(), {rawCurve({})});
    graph.drawLegendLines(canvas.ref(), {rawCurve({})});
    graph.drawError(canvas.ref(), L"Oops");
    // "A (um)" is 48 pixels: 150 + 24, at 60 - 48. Half of 21 is 11 when rounded.
    EXPECT_EQ(canvas.taken("IHostCanvas."), (Lines{"IHostCanvas.TextOut(12, 174, \"A (um)\")",
                                                   "IHostCanvas.TextOut(12, 174, \"A (um)\")",
                                                   "IHostCanvas.TextRect(11, 11, 43, 27, "
                                                   "\"Oops\", 256)"}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
