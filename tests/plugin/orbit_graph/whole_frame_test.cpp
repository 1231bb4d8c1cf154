#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

// One raw orbit on a dark canvas of 300 by 300 pixels with texts of 8 pixels per character and 16
// per line, in a font of 21. The plot: 300 - 2 * 40 = 220, less one margin of 40: 180, so 60 to 240
// with its centre at 150 and a half width of 90.
constexpr Color Background = 0;
constexpr Color Grid = 3815994;
constexpr Color Text = 12632256;
constexpr Color Axis = 10132122;
constexpr Color Border = 1907997;
constexpr Color Orbit = 255;

class WholeFrame : public testing::Test {
protected:
    WholeFrame() {
        graph_.setTickCount(1);
        graph_.setXAngle(90);
        graph_.layout(canvas_.ref(), {0, 0, 300, 300}, 0);
        graph_.setThemeColors(Background, Grid, Text, Axis, Border);
        graph_.setDecimals(0);
        // 10 % of head room round -10 to 10.
        graph_.setRotationDirection(1);
        graph_.autoScale({-10, 10, -10, 10});
        graph_.layoutLimitLabels(canvas_.ref());
        OrbitCurve curve = curveOf(OrbitKind::Raw, Orbit, L"Shaft", L"um");
        curve.points = {{7, 7}, {0, -10}, {-10, 0}, {0, 10}, {10, 0}};
        curves_.push_back(curve);
    }

    void expectLines(const Lines& expected) { EXPECT_EQ(canvas_.taken(), expected); }

    RecordingCanvas canvas_;
    OrbitGraph graph_;
    std::vector<OrbitCurve> curves_;
};

TEST_F(WholeFrame, BeginsWithBackgroundGridEdgesAndArrow) {
    graph_.drawFrame(canvas_.ref());
    expectLines({
        "IHostPen.SetStyle(0)",
        "IHostPen.SetColor(1907997)",
        "IHostBrush.SetColor(0)",
        "IHostBrush.SetStyle(0)",
        "IHostFont.SetColor(12632256)",
        // The square.
        "IHostPen.SetStyle(0)",
        "IHostPen.SetColor(1907997)",
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(0)",
        "IHostCanvas.Rectangle(60, 60, 240, 240)",
        // Two lines each way: t = 1 and t = 0.
        "IHostPen.SetStyle(0)",
        "IHostPen.SetColor(3815994)",
        "IHostCanvas.MoveTo(240, 60)",
        "IHostCanvas.LineTo(240, 240)",
        "IHostCanvas.MoveTo(60, 240)",
        "IHostCanvas.LineTo(240, 240)",
        "IHostCanvas.MoveTo(150, 60)",
        "IHostCanvas.LineTo(150, 240)",
        "IHostCanvas.MoveTo(60, 150)",
        "IHostCanvas.LineTo(240, 150)",
        // The edges.
        "IHostPen.SetColor(10132122)",
        "IHostCanvas.MoveTo(60, 60)",
        "IHostCanvas.LineTo(60, 240)",
        "IHostCanvas.MoveTo(60, 240)",
        "IHostCanvas.LineTo(240, 240)",
        "IHostPen.SetStyle(0)",
        "IHostPen.SetColor(12632256)",
        "IHostBrush.SetStyle(1)",
        // The arrow's box is a third of the plot in its upper right corner, 180 60 240 120, about
        // 210 90. Its ends: 210 + 30 cos 20 = 238.2, 90 - 30 sin 20 = 79.7; and
        // 210 + 30 sin 20 = 220.3, 90 - 30 cos 20 = 61.8.
        "IHostPen.SetColor(10132122)",
        "IHostPen.SetWidth(2)",
        "IHostCanvas.Arc(180, 120, 240, 60, 238, 79, 220, 61)",
        "IHostPen.SetWidth(1)",
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(10132122)",
        // Clockwise: at the first end, turned by 295 degrees (cos 0.4226, sin -0.9063). From
        // 238.191 79.739: (0, 5) moves it by -4.53 2.11, (10, 0) by 4.23 9.06.
        "IHostCanvas.Polygon([238, 79, 233, 81, 242, 88, 242, 77], 4)",
        "IHostFont.SetColor(12632256)",
    });
}

TEST_F(WholeFrame, LabelsTicksAndLimits) {
    graph_.drawScaleLabels(canvas_.ref());
    expectLines({
        "IHostBrush.SetStyle(1)",
        // The middle tick: 8 pixels wide, centred on 150, below the plot; 21 * 0.8 = 16.8.
        "IHostFont.SetHeight(17)",
        "IHostBrush.SetStyle(1)",
        "IHostFont.SetColor(12632256)",
        "IHostCanvas.TextRect(146, 240, 154, 256, \"0\", 256)",
        "IHostFont.SetHeight(21)",
        "IHostFont.SetHeight(17)",
        "IHostBrush.SetStyle(1)",
        "IHostFont.SetColor(12632256)",
        "IHostFont.SetOrientation(900)",
        "IHostCanvas.TextOut(44, 154, \"0\")",
        "IHostFont.SetOrientation(0)",
        "IHostFont.SetHeight(21)",
        // The limits at the corners.
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(3815994)",
        "IHostFont.SetColor(12632256)",
        "IHostCanvas.TextRect(60, 240, 84, 256, \"-11\", 256)",
        "IHostFont.SetColor(12632256)",
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(3815994)",
        "IHostFont.SetColor(12632256)",
        "IHostCanvas.TextRect(224, 240, 240, 256, \"11\", 256)",
        "IHostFont.SetColor(12632256)",
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(3815994)",
        "IHostFont.SetColor(12632256)",
        "IHostFont.SetOrientation(900)",
        "IHostCanvas.TextOut(44, 240, \"-11\")",
        "IHostFont.SetOrientation(0)",
        "IHostFont.SetColor(12632256)",
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(3815994)",
        "IHostFont.SetColor(12632256)",
        "IHostFont.SetOrientation(900)",
        "IHostCanvas.TextOut(44, 76, \"11\")",
        "IHostFont.SetOrientation(0)",
        "IHostFont.SetColor(12632256)",
    });
}

TEST_F(WholeFrame, NamesTheAxes) {
    graph_.drawAxisTitles(canvas_.ref(), L"um");
    // 11 characters are 88 pixels: 150 - 44 = 106 and 150 + 44 = 194; 240 + 16 and 60 - 32.
    expectLines({
        "IHostBrush.SetStyle(1)",
        "IHostCanvas.TextRect(106, 256, 194, 272, \"X axis (um)\", 256)",
        "IHostFont.SetOrientation(900)",
        "IHostCanvas.TextOut(28, 194, \"Y axis (um)\")",
        "IHostFont.SetOrientation(0)",
    });
}

TEST_F(WholeFrame, DrawsTheOrbit) {
    graph_.drawTraces(canvas_.ref(), curves_);
    // 7 / 11 * 90 = 57.3 and 10 / 11 * 90 = 81.8 from the centre.
    expectLines({"IHostPen.SetColor(255)", "IHostCanvas.MoveTo(207, 92)",
                 "IHostCanvas.LineTo(150, 231)", "IHostCanvas.LineTo(68, 150)",
                 "IHostCanvas.LineTo(150, 68)", "IHostCanvas.LineTo(231, 150)"});
}

TEST_F(WholeFrame, EndsWithBadgesAndLegend) {
    graph_.drawSensorBadges(canvas_.ref());
    graph_.drawLegendRow(canvas_.ref(), curves_);
    // 14.7 pixels round 240 150 and, twice, round 150 60. "Shaft (um)" is 80 pixels: 150 + 40;
    // 60 - 3 * 16 = 12.
    expectLines({
        "IHostPen.SetStyle(0)",
        "IHostPen.SetColor(0)",
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(12632256)",
        "IHostCanvas.Rectangle(225, 135, 254, 164)",
        "IHostFont.SetColor(0)",
        "IHostCanvas.TextRect(225, 135, 254, 164, \"X\", 81924)",
        "IHostPen.SetStyle(0)",
        "IHostPen.SetColor(0)",
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(12632256)",
        "IHostCanvas.Rectangle(135, 45, 164, 74)",
        "IHostFont.SetColor(0)",
        "IHostCanvas.TextRect(135, 45, 164, 74, \"Y\", 81924)",
        "IHostPen.SetStyle(0)",
        "IHostPen.SetColor(0)",
        "IHostBrush.SetStyle(0)",
        "IHostBrush.SetColor(12632256)",
        "IHostCanvas.Rectangle(135, 45, 164, 74)",
        "IHostFont.SetColor(0)",
        "IHostCanvas.TextRect(135, 45, 164, 74, \"T\", 81924)",
        "IHostBrush.SetColor(0)",
        "IHostFont.SetColor(255)",
        "IHostFont.SetOrientation(900)",
        "IHostCanvas.TextOut(12, 190, \"Shaft (um)\")",
        "IHostFont.SetOrientation(0)",
    });
}

TEST_F(WholeFrame, GivesEveryReferenceBack) {
    graph_.drawFrame(canvas_.ref());
    graph_.drawScaleLabels(canvas_.ref());
    graph_.drawTraces(canvas_.ref(), curves_);
    graph_.drawSensorBadges(canvas_.ref());
    graph_.drawLegendRow(canvas_.ref(), curves_);
    EXPECT_EQ(canvas_.host.references(), 0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
