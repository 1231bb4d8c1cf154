#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

// An area of 300 by 300 pixels that starts at 50: the plot goes from 110 to 290 in y, about 200.
// What is flipped is taken from the height of 300 alone and so stands 100 pixels above a plot that
// is not flipped: that is right only for areas that start at 0.
struct Flip : testing::Test, LaidOutGraph {
    Flip() {
        graph.setTickCount(1);
        graph.invalidateLayout();
        graph.layout(canvas.ref(), {0, 50, 300, 350}, 0);
    }

    Lines drawn() { return canvas.taken("IHostCanvas."); }
};

TEST_F(Flip, LeavesTheSquareWhereItIs) {
    graph.drawFrame(canvas.ref());
    EXPECT_EQ(canvas.taken("IHostCanvas.Rectangle"),
              (Lines{"IHostCanvas.Rectangle(60, 110, 240, 290)"}));
}

TEST_F(Flip, TakesTracesAndClearanceFromTheHeight) {
    // 300 - 200 and 300 - 290.
    EXPECT_EQ(callsOf("IHostCanvas.", traces({rawCurve({{0, 0}, {0, 1}})})),
              (Lines{"IHostCanvas.MoveTo(150, 100)", "IHostCanvas.LineTo(150, 10)"}));
    graph.setDrawClearance(true);
    graph.drawClearanceEllipse(canvas.ref());
    EXPECT_EQ(drawn()[0], "IHostCanvas.MoveTo(150, 100)");
}

TEST_F(Flip, TakesTheArrowFromTheHeight) {
    graph.drawFrame(canvas.ref());
    // The upper edge, 290, goes to 10: the arrow stands 50 above that of an area from 0.
    EXPECT_EQ(canvas.taken("IHostCanvas.Arc"),
              (Lines{"IHostCanvas.Arc(180, 70, 240, 10, 238, 29, 220, 11)"}));
}

TEST_F(Flip, TakesTicksAndTitlesFromTheHeight) {
    graph.drawAxisTitles(canvas.ref(), L"um");
    // The lower edge, 110, goes to 190, and the centre, 200, to 100.
    EXPECT_EQ(drawn(), (Lines{"IHostCanvas.TextRect(106, 206, 194, 222, \"X axis (um)\", 256)",
                              "IHostCanvas.TextOut(28, 144, \"Y axis (um)\")"}));
    graph.drawScaleLabels(canvas.ref());
    EXPECT_EQ(drawn()[0], "IHostCanvas.TextRect(146, 190, 154, 206, \"0\", 256)");
}

TEST_F(Flip, TurnsTheBadgesAboutThePlotAsItStands) {
    graph.setXAngle(0);
    graph.setYAngle(90);
    graph.setTachoAngle(180);
    graph.drawSensorBadges(canvas.ref());
    // The origin, 200 + 127.28, goes to -27.28, 227.28 above the centre: held at 110 above, at 240
    // right and at 290 below.
    EXPECT_EQ(canvas.taken("IHostCanvas.Rectangle"),
              (Lines{"IHostCanvas.Rectangle(135, 95, 164, 124)",
                     "IHostCanvas.Rectangle(225, 185, 254, 214)",
                     "IHostCanvas.Rectangle(135, 275, 164, 304)"}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
