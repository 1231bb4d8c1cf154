#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {
namespace {

// The legend begins three lines of 16 pixels left of the plot: 60 - 48 = 12.
struct Legend : testing::Test, LaidOutGraph {
    const OrbitCurve a = curveOf(OrbitKind::Raw, 7, L"A", L"um");
    const OrbitCurve b = curveOf(OrbitKind::Raw, 8, L"Bb", L"um");

    Lines lines(const std::vector<OrbitCurve>& curves) {
        graph.drawLegendLines(canvas.ref(), curves);
        return canvas.taken();
    }

    Lines row(const std::vector<OrbitCurve>& curves) {
        graph.drawLegendRow(canvas.ref(), curves);
        return canvas.taken();
    }
};

TEST_F(Legend, LinesAreCentredOnThePlotAndMoveLeft) {
    // "A (um)" is 48 pixels wide and "Bb (um)" 56: 150 + 24 and 150 + 28.
    EXPECT_EQ(
        lines({a, b}),
        (Lines{"IHostBrush.SetColor(1)", "IHostFont.SetColor(7)", "IHostFont.SetOrientation(900)",
               "IHostCanvas.TextOut(12, 174, \"A (um)\")", "IHostFont.SetOrientation(0)",
               "IHostBrush.SetColor(1)", "IHostFont.SetColor(8)", "IHostFont.SetOrientation(900)",
               "IHostCanvas.TextOut(-4, 178, \"Bb (um)\")", "IHostFont.SetOrientation(0)"}));
    EXPECT_EQ(graph.state().legendX, -20);
}

TEST_F(Legend, LinesRunOffToTheLeftPastAnyGuard) {
    const Lines drawn = callsOf("IHostCanvas.TextOut", lines(std::vector<OrbitCurve>(3000, a)));
    // 12 - 2999 * 16
    EXPECT_EQ(drawn.back(), "IHostCanvas.TextOut(-47972, 174, \"A (um)\")");
}

TEST_F(Legend, RowIsOneLineThatMovesUp) {
    // "A (um), " is 64 pixels and "Bb (um)" 56: half of 120 below the centre, then 64 up.
    EXPECT_EQ(
        row({a, b}),
        (Lines{"IHostBrush.SetColor(1)", "IHostFont.SetColor(7)", "IHostFont.SetOrientation(900)",
               "IHostCanvas.TextOut(12, 210, \"A (um), \")", "IHostFont.SetOrientation(0)",
               "IHostBrush.SetColor(1)", "IHostFont.SetColor(8)", "IHostFont.SetOrientation(900)",
               "IHostCanvas.TextOut(12, 146, \"Bb (um)\")", "IHostFont.SetOrientation(0)"}));
    EXPECT_EQ(graph.state().legendY, 90);
}

TEST_F(Legend, RowMeasuresItsTextAsAWhole) {
    canvas.recordMeasures();
    const Lines drawn = row({a, b});
    EXPECT_EQ(drawn[0], "IHostCanvas.TextWidth(\"A (um), Bb (um)\") -> 120");
}

TEST_F(Legend, RowHalvesAnOddWidthWithTruncation) {
    // A plot of 181 pixels from 60 on, about 150.5.
    layOut(301, 301);
    canvas.host.description.canvas.charWidth = 1;
    // 150.5 + 7 / 2 = 153.5, and then 7 up.
    EXPECT_EQ(callsOf("IHostCanvas.TextOut", row({b})),
              (Lines{"IHostCanvas.TextOut(12, 153, \"Bb (um)\")"}));
    EXPECT_EQ(graph.state().legendY, 146.5);
    // A line takes the exact half: 150.5 + 3.5.
    EXPECT_EQ(callsOf("IHostCanvas.TextOut", lines({b})),
              (Lines{"IHostCanvas.TextOut(12, 154, \"Bb (um)\")"}));
    EXPECT_EQ(graph.state().legendY, 154);
}

TEST_F(Legend, BeginsThreeLinesOfTextFromThePlot) {
    canvas.recordMeasures();
    const auto isLine = [](const std::string& line) { return line.find("Aj") != line.npos; };
    EXPECT_EQ(std::ranges::count_if(lines({a, b}), isLine), 1);
    EXPECT_EQ(std::ranges::count_if(row({a, b}), isLine), 1);
    EXPECT_EQ(graph.state().legendX, 12);
}

TEST_F(Legend, EndsNamesAndUnitsAtTheirFirstZeroCharacter) {
    const OrbitCurve curve =
        curveOf(OrbitKind::Raw, 7, std::wstring(L"A\0B", 3), std::wstring(L"um\0mil", 6));
    EXPECT_EQ(callsOf("IHostCanvas.TextOut", lines({curve})),
              (Lines{"IHostCanvas.TextOut(12, 174, \"A (um)\")"}));
}

TEST_F(Legend, CurveWithoutNameOrUnitHasEmptyInserts) {
    EXPECT_EQ(callsOf("IHostCanvas.TextOut", row({curveOf(OrbitKind::Raw, 7, L"", L"")})),
              (Lines{"IHostCanvas.TextOut(12, 162, \" ()\")"}));
}

TEST_F(Legend, OfNoCurveIsNothing) {
    EXPECT_TRUE(lines({}).empty());
    EXPECT_TRUE(row({}).empty());
    canvas.recordMeasures();
    EXPECT_EQ(row({})[0], "IHostCanvas.TextWidth(\"\") -> 0");
    EXPECT_TRUE(lines({}).empty());
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
