#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

// With the X probe at 90 degrees and the Y probe at 0, the phasors (0.5, 0) and (0, 0.5) give
// y = 0.5 sin t and x = 0.5 sin(t + 90) = 0.5 cos t.
struct Harmonic : testing::Test, LaidOutGraph {
    Harmonic() { graph.setXAngle(90); }

    Lines curve(std::vector<Point> phasors) {
        OrbitCurve harmonic = curveOf(OrbitKind::Harmonic);
        harmonic.points = std::move(phasors);
        return traces({harmonic});
    }
};

TEST_F(Harmonic, BeginsWithADotAtPhaseZero) {
    const Lines lines = curve({{0.5, 0}, {0, 0.5}});
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 8),
              (Lines{"IHostPen.SetColor(7)", "IHostPen.SetStyle(0)", "IHostPen.SetColor(7)",
                     "IHostBrush.SetStyle(0)", "IHostBrush.SetColor(7)",
                     "IHostCanvas.Ellipse(192, 153, 198, 147)", "IHostCanvas.MoveTo(195, 150)",
                     "IHostCanvas.LineTo(195, 150)"}));
}

TEST_F(Harmonic, LeavesTheLastTwentyDegreesOpen) {
    const Lines lines = callsOf("IHostCanvas.LineTo", curve({{0.5, 0}, {0, 0.5}}));
    ASSERT_EQ(lines.size(), 340U);
    EXPECT_EQ(lines[90], "IHostCanvas.LineTo(150, 105)");
    // At 339 degrees: 45 * 0.93358 = 42.01 right, 45 * 0.35837 = 16.13 below.
    EXPECT_EQ(lines[339], "IHostCanvas.LineTo(192, 166)");
}

TEST_F(Harmonic, GoesWithTheProbesOfItsPair) {
    // The first phasor is the Y probe's, here at 90 degrees: x = 0.5 sin t, at its largest after
    // a quarter turn.
    graph.setXAngle(0);
    graph.setYAngle(90);
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", curve({{0.5, 0}, {0, 0}}))[90],
              "IHostCanvas.LineTo(195, 150)");
}

TEST_F(Harmonic, DrawsEachPairByItself) {
    const Lines lines = curve({{0.5, 0}, {0, 0.5}, {0.25, 0}, {0, 0.25}});
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", lines).size(), 680U);
    EXPECT_EQ(callsOf("IHostCanvas.MoveTo", lines),
              (Lines{"IHostCanvas.MoveTo(195, 150)", "IHostCanvas.MoveTo(172, 150)"}));
}

TEST_F(Harmonic, LeavesAPhasorWithoutAPartnerOut) {
    EXPECT_EQ(curve({{0.5, 0}}), (Lines{"IHostPen.SetColor(7)"}));
    EXPECT_TRUE(callsOf("IHostCanvas.", curve({})).empty());
}

TEST_F(Harmonic, HasNoDotWhereItBeginsOutside) {
    const Lines lines = curve({{0.5, 0}, {0, 1.5}});
    EXPECT_TRUE(callsOf("IHostCanvas.Ellipse", lines).empty());
    EXPECT_EQ(lines[1], "IHostCanvas.MoveTo(240, 150)");
    // |1.5 cos t| is below 1 from 49 to 131 and from 229 to 311 degrees.
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", lines).size(), 83U + 83U);
}

TEST_F(Harmonic, IsSearchedAtEachStep) {
    graph.setPointer({150, 100});
    curve({{0.5, 0}, {0, 0.5}});
    EXPECT_TRUE(graph.nearest().found);
    EXPECT_EQ(graph.nearest().kind, OrbitKind::Harmonic);
    EXPECT_EQ(graph.nearest().y, 0.5);
    EXPECT_EQ(graph.nearest().distance, 5);
}

TEST_F(Harmonic, IsAsLargeAsItsPhasorIsLong) {
    // 0.3 + 0.4i is 0.5 long and 53.13 degrees ahead: at its top after 37 degrees, at its bottom
    // half a turn later.
    const Lines lines = callsOf("IHostCanvas.LineTo", curve({{0.3, 0.4}, {0, 0}}));
    EXPECT_EQ(lines[37], "IHostCanvas.LineTo(150, 105)");
    EXPECT_EQ(lines[217], "IHostCanvas.LineTo(150, 194)");
}

TEST_F(Harmonic, IsNotSearchedOutside) {
    // The pointer stands where the first step lies on the limit. The first step inside is at 49
    // degrees: 1.5 cos 49 = 0.98409.
    graph.setPointer({240, 150});
    curve({{0.5, 0}, {0, 1.5}});
    EXPECT_NEAR(graph.nearest().x, 0.98409, 1e-5);
    EXPECT_GT(graph.nearest().distance, 33);
}

TEST_F(Harmonic, DropsDotsAndLinesBeyondTheGuard) {
    layOut(100000, 100000);
    // Round 50000 with a radius of 24970. Both coordinates are within 32767 where |cos| and sin are
    // above 17233 / 24970 = 0.6901: from 133.6 to 136.4 degrees.
    const Lines lines = callsOf("IHostCanvas.", curve({{0.5, 0}, {0, 0.5}}));
    EXPECT_EQ(lines.size(), 3U);
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", lines).size(), 3U);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
