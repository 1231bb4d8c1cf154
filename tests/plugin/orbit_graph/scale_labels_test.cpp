#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct ScaleLabels : testing::Test, LaidOutGraph {
    Lines labels() {
        layOut();
        graph.layoutLimitLabels(canvas.ref());
        canvas.taken();
        graph.drawScaleLabels(canvas.ref());
        return canvas.taken();
    }

    /// How many texts stand on the x axis and on the y axis, limits included.
    std::pair<std::size_t, std::size_t> counts() {
        const Lines lines = labels();
        return {callsOf("IHostCanvas.TextRect", lines).size(),
                callsOf("IHostCanvas.TextOut", lines).size()};
    }
};

using Counts = std::pair<std::size_t, std::size_t>;

TEST_F(ScaleLabels, StandBetweenTheTwoLimitsOfEachAxis) {
    EXPECT_EQ(counts(), (Counts{5 + 2, 5 + 2}));
    graph.setTickCount(0);
    EXPECT_EQ(counts(), (Counts{2, 2}));
}

TEST_F(ScaleLabels, StandOnBothSidesOfTheCentreOfACircle) {
    graph.setGraphType(GraphType::Circle);
    EXPECT_EQ(counts(), (Counts{11 + 2, 11 + 2}));
    graph.setTickCount(0);
    EXPECT_EQ(counts(), (Counts{1 + 2, 1 + 2}));
}

TEST_F(ScaleLabels, AlternateBetweenXAndYFromTheUpperEnds) {
    graph.setTickCount(3);
    graph.setDecimals(2);
    const Lines texts = callsOf("IHostCanvas.Text", labels());
    // Each text is 32 pixels wide; it is centred on 150 + 45 and then on 150.
    EXPECT_EQ(Lines(texts.begin(), texts.begin() + 4),
              (Lines{"IHostCanvas.TextRect(179, 240, 211, 256, \"0.50\", 256)",
                     "IHostCanvas.TextOut(44, 121, \"0.50\")",
                     "IHostCanvas.TextRect(134, 240, 166, 256, \"0.00\", 256)",
                     "IHostCanvas.TextOut(44, 166, \"0.00\")"}));
}

TEST_F(ScaleLabels, FallAwayWithoutARange) {
    graph.autoScale(Range{});
    EXPECT_EQ(counts(), (Counts{2, 2}));
    // The lower limits are minus zero, which the format writes with its sign.
    graph.setDecimals(1);
    const Lines lines = labels();
    EXPECT_EQ(callsOf("IHostCanvas.TextRect", lines)[0],
              "IHostCanvas.TextRect(28, 240, 60, 256, \"-0.0\", 256)");
    EXPECT_EQ(callsOf("IHostCanvas.TextOut", lines)[1], "IHostCanvas.TextOut(44, 84, \"0.0\")");
}

TEST_F(ScaleLabels, FallAwayInARangeOfSmallNumbers) {
    setLimits({0, 1e-8, 0, 1e-8});
    EXPECT_EQ(counts(), (Counts{2, 2}));
}

TEST_F(ScaleLabels, AreMeasuredAtFullHeightAndDrawnAtFourFifths) {
    graph.setTickCount(1);
    canvas.recordMeasures();
    const Lines lines = labels();
    // 21 * 0.8 = 16.8, rounded.
    const Lines expected{"IHostCanvas.TextWidth(\"0\") -> 8", "IHostCanvas.GetFont() -> \"font\"",
                         "IHostFont.GetHeight() -> 21", "IHostFont.SetHeight(17)"};
    EXPECT_NE(std::search(lines.begin(), lines.end(), expected.begin(), expected.end()),
              lines.end());
    EXPECT_EQ(callsOf("IHostFont.SetHeight", lines),
              (Lines{"IHostFont.SetHeight(17)", "IHostFont.SetHeight(21)",
                     "IHostFont.SetHeight(17)", "IHostFont.SetHeight(21)"}));
}

TEST_F(ScaleLabels, ShrinkANegativeFontHeightToo) {
    graph.setTickCount(1);
    canvas.host.description.canvas.fontHeight = -16;
    EXPECT_EQ(callsOf("IHostFont.SetHeight", labels())[0], "IHostFont.SetHeight(-13)");
}

TEST_F(ScaleLabels, HaveTheHoverColourOnTheirStrip) {
    graph.setTickCount(1);
    graph.layoutAxisStrips(canvas.ref());
    graph.hitTestAxisStrips({150, 250});
    // x tick, y tick, and each of the four limits begins and ends with the text's colour.
    EXPECT_EQ(callsOf("IHostFont.SetColor", labels())[0], "IHostFont.SetColor(2973169)");
    EXPECT_EQ(callsOf("IHostFont.SetColor", labels())[1], "IHostFont.SetColor(3)");
    graph.hitTestAxisStrips({50, 150});
    EXPECT_EQ(callsOf("IHostFont.SetColor", labels())[0], "IHostFont.SetColor(3)");
    EXPECT_EQ(callsOf("IHostFont.SetColor", labels())[1], "IHostFont.SetColor(2973169)");
}

TEST_F(ScaleLabels, LeaveTheHoverColourToAHoveredLimit) {
    graph.setTickCount(1);
    labels();
    graph.layoutAxisStrips(canvas.ref());
    // The corner where both strips and the first label meet.
    graph.hitTestAxisStrips({60, 240});
    graph.hitTestLimitLabels({60, 240});
    const Lines colours = callsOf("IHostFont.SetColor", labels());
    EXPECT_EQ(Lines(colours.begin(), colours.begin() + 4),
              (Lines{"IHostFont.SetColor(3)", "IHostFont.SetColor(3)",
                     "IHostFont.SetColor(2973169)", "IHostFont.SetColor(3)"}));
}

TEST_F(ScaleLabels, OfLimitsKeepTheirOldBoxesWithoutALayout) {
    LaidOutGraph fresh;
    fresh.graph.setTickCount(0);
    fresh.graph.drawScaleLabels(fresh.canvas.ref());
    // The boxes are empty ones, beyond the guard; all four labels still count as horizontal.
    EXPECT_TRUE(fresh.canvas.taken("IHostCanvas.Text").empty());
}

TEST_F(ScaleLabels, LeaveTheBrushSolidInTheGridColour) {
    const Lines lines = labels();
    EXPECT_EQ(callsOf("IHostBrush.SetStyle", lines).back(), "IHostBrush.SetStyle(0)");
    EXPECT_EQ(callsOf("IHostBrush.SetColor", lines).back(), "IHostBrush.SetColor(2)");
    EXPECT_TRUE(callsOf("IHostPen.", lines).empty());
}

TEST_F(ScaleLabels, OfLimitsShowTheirOldNumbersWithoutALayout) {
    graph.setTickCount(0);
    labels();
    setLimits({-5, 5, -5, 5});
    graph.drawScaleLabels(canvas.ref());
    EXPECT_EQ(
        canvas.taken("IHostCanvas.Text"),
        (Lines{"IHostCanvas.TextRect(60, 240, 76, 256, \"-1\", 256)",
               "IHostCanvas.TextRect(232, 240, 240, 256, \"1\", 256)",
               "IHostCanvas.TextOut(44, 240, \"-1\")", "IHostCanvas.TextOut(44, 68, \"1\")"}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
