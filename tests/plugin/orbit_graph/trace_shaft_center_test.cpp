#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct ShaftCenter : testing::Test, LaidOutGraph {
    Lines curve(std::vector<CurveSample> samples) {
        return traces({sampledCurve(OrbitKind::ShaftCenter, std::move(samples))});
    }

    /// The labels alone.
    Lines labels(std::vector<CurveSample> samples) {
        return callsOf("IHostCanvas.TextRect", curve(std::move(samples)));
    }
};

// A dot at 0.5, 0 is the box 192 153 198 147: its label begins at 203 and lies 8 pixels above and
// below 147.

TEST_F(ShaftCenter, GoesFromTheOldestSampleToAWhiteNewestOne) {
    EXPECT_EQ(
        curve({{0.5, 0, 100}, {0, 0, 2000}}),
        (Lines{"IHostPen.SetColor(7)", "IHostBrush.SetColor(7)", "IHostFont.SetColor(7)",
               "IHostCanvas.MoveTo(150, 150)", "IHostBrush.SetStyle(0)",
               "IHostCanvas.Ellipse(147, 153, 153, 147)",
               // The line keeps the curve's colour, the dot is white.
               "IHostCanvas.LineTo(195, 150)", "IHostFont.SetColor(16777215)",
               "IHostBrush.SetColor(16777215)", "IHostPen.SetColor(16777215)",
               "IHostBrush.SetStyle(0)", "IHostCanvas.Ellipse(192, 153, 198, 147)",
               // Black on a bright ground. log10 of 2000 is 3.3: four digits of 8 pixels.
               "IHostFont.SetColor(0)", "IHostBrush.SetStyle(1)",
               "IHostCanvas.TextRect(158, 139, 190, 155, \"2000\", 4)",
               "IHostCanvas.TextRect(203, 139, 219, 155, \"100\", 4)", "IHostFont.SetColor(3)"}));
}

TEST_F(ShaftCenter, OfOneSampleIsNotWhite) {
    const Lines lines = curve({{0.5, 0, 1}});
    EXPECT_EQ(callsOf("IHostPen.SetColor", lines), (Lines{"IHostPen.SetColor(7)"}));
    EXPECT_EQ(callsOf("IHostCanvas.", lines),
              (Lines{"IHostCanvas.MoveTo(195, 150)", "IHostCanvas.Ellipse(192, 153, 198, 147)",
                     "IHostCanvas.TextRect(203, 139, 211, 155, \"1\", 4)"}));
}

TEST_F(ShaftCenter, WithoutASampleSetsOnlyItsColours) {
    EXPECT_EQ(curve({}),
              (Lines{"IHostPen.SetColor(7)", "IHostBrush.SetColor(7)", "IHostFont.SetColor(7)"}));
}

TEST_F(ShaftCenter, HasLabelsAsWideAsTheDigitsBeforeThePoint) {
    struct Case {
        double value;
        int width;
        const char* text;
    };
    const Case cases[] = {
        {1000, 24, "1000"},  // log10 is 3: three digits for a text of four
        {1001, 32, "1001"},  {0, 8, "0"},
        {0.4, 8, "0"},       {1, 8, "1"},
        {1.4, 8, "1"},       {12.6, 16, "13"},
        {-5000, 8, "-5000"}, {std::numeric_limits<double>::quiet_NaN(), 8, "nan"},
    };
    for (const Case& c : cases) {
        const std::string right = std::to_string(203 + c.width);
        EXPECT_EQ(labels({{0.5, 0, c.value}}), (Lines{"IHostCanvas.TextRect(203, 139, " + right +
                                                      ", 155, \"" + c.text + "\", 4)"}));
    }
}

TEST_F(ShaftCenter, HasWhiteLabelsOnADarkGround) {
    graph.setThemeColors(Black, Theme::Grid, Theme::Text, Theme::Axis, Theme::Border);
    EXPECT_EQ(
        callsOf("IHostFont.SetColor", curve({{0, 0, 1}})),
        (Lines{"IHostFont.SetColor(7)", "IHostFont.SetColor(16777215)", "IHostFont.SetColor(3)"}));
}

TEST_F(ShaftCenter, LetsTheSampleEarlierInTheWalkHaveItsLabel) {
    // The oldest, last in the list, is walked first.
    EXPECT_EQ(labels({{0.5, 0, 1}, {0.51, 0, 2}, {0.52, 0, 3}}),
              (Lines{"IHostCanvas.TextRect(204, 139, 212, 155, \"3\", 4)"}));
}

TEST_F(ShaftCenter, AvoidsTheLabelsOfOtherCurvesInTheFrame) {
    const OrbitCurve first = sampledCurve(OrbitKind::ShaftCenter, {{0.5, 0, 1}});
    const OrbitCurve second = sampledCurve(OrbitKind::ShaftCenter, {{0.5, 0, 2}, {-0.5, 0, 3}});
    const Lines expected{"IHostCanvas.TextRect(203, 139, 211, 155, \"1\", 4)",
                         "IHostCanvas.TextRect(113, 139, 121, 155, \"3\", 4)"};
    EXPECT_EQ(callsOf("IHostCanvas.TextRect", traces({first, second})), expected);
    // The next frame begins anew.
    EXPECT_EQ(callsOf("IHostCanvas.TextRect", traces({first, second})), expected);
}

TEST_F(ShaftCenter, MovesToASampleOutsideWithoutDotAndLabel) {
    // The walk begins outside: its second sample is reached with a line.
    EXPECT_EQ(callsOf("IHostCanvas.", curve({{0.5, 0, 1}, {2, 0, 5}})),
              (Lines{"IHostCanvas.MoveTo(240, 150)", "IHostCanvas.LineTo(195, 150)",
                     "IHostCanvas.Ellipse(192, 153, 198, 147)",
                     "IHostCanvas.TextRect(203, 139, 211, 155, \"1\", 4)"}));
}

TEST_F(ShaftCenter, HasNoWhiteDotWhileTheNewestSampleIsOutside) {
    EXPECT_EQ(callsOf("IHostPen.SetColor", curve({{2, 0, 1}, {0, 0, 5}})),
              (Lines{"IHostPen.SetColor(7)"}));
}

TEST_F(ShaftCenter, HasALabelOnTheLimit) {
    EXPECT_EQ(labels({{1, 0, 5}}), (Lines{"IHostCanvas.TextRect(248, 139, 256, 155, \"5\", 4)"}));
}

TEST_F(ShaftCenter, TellsTheThirdValueOfItsMatch) {
    graph.setPointer({150, 150});
    curve({{0.5, 0, 100}, {0.1, 0, 2000}, {0.9, 0, 3000}});
    EXPECT_EQ(graph.nearest().extra, 2000);
    EXPECT_EQ(graph.nearest().kind, OrbitKind::ShaftCenter);
}

TEST_F(ShaftCenter, KnowsNoGuardInside) {
    layOut(100000, 100000);
    // 50000 + 49940 * 0.5: (100000 - 120) / 2 is the half width. The labels do know it.
    EXPECT_EQ(callsOf("IHostCanvas.", curve({{0.25, 0, 1}, {0.5, 0, 2}})),
              (Lines{"IHostCanvas.MoveTo(74970, 50000)",
                     "IHostCanvas.Ellipse(74967, 50003, 74973, 49997)",
                     "IHostCanvas.LineTo(62485, 50000)",
                     "IHostCanvas.Ellipse(62482, 50003, 62488, 49997)"}));
}

TEST_F(ShaftCenter, StopsLabellingWhereNobodyCouldReadOn) {
    layOut(3120, 3120);
    // 100 by 50 places in a plot of 3000 pixels: 30 and 60 pixels apart.
    std::vector<CurveSample> samples;
    for (int i = 0; i < 100; ++i) {
        for (int k = 0; k < 50; ++k)
            samples.push_back({-0.99 + i * 0.02, -0.98 + k * 0.04, 1});
    }
    const Lines lines = curve(samples);
    EXPECT_EQ(callsOf("IHostCanvas.Ellipse", lines).size(), 5000U);
    EXPECT_EQ(callsOf("IHostCanvas.TextRect", lines).size(), 4096U);
}

TEST_F(ShaftCenter, DropsTheMoveToASampleOutsideBeyondTheGuard) {
    layOut(100000, 100000);
    EXPECT_TRUE(callsOf("IHostCanvas.", curve({{2, 0, 1}})).empty());
}

TEST_F(ShaftCenter, CountsALabelAsPlacedThatTheGuardDrops) {
    layOut(100000, 100000);
    EXPECT_TRUE(labels({{0.25, 0, 1}, {0.5, 0, 2}}).empty());
    // 74973 + 5 and 62488 + 5, in the order of the walk; 8 above and below 49997.
    EXPECT_EQ(graph.state().placedLabels,
              (std::vector<Rectangle>{{74978, 49989, 74986, 50005}, {62493, 49989, 62501, 50005}}));
}

TEST_F(ShaftCenter, IsNotSearchedOutside) {
    graph.setPointer({240, 150});
    curve({{2, 0, 5}, {0, 0, 7}});
    EXPECT_EQ(graph.nearest().x, 0);
    EXPECT_EQ(graph.nearest().extra, 7);
}

TEST_F(ShaftCenter, MeasuresADigitAndALineBeforeItDraws) {
    canvas.recordMeasures();
    const Lines lines = curve({});
    EXPECT_EQ(Lines(lines.end() - 2, lines.end()),
              (Lines{"IHostCanvas.TextWidth(\"0\") -> 8", "IHostCanvas.TextHeight(\"Aj\") -> 16"}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
