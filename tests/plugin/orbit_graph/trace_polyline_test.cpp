#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Polyline : testing::Test, LaidOutGraph {
    Lines line(std::vector<Point> points) {
        return callsOf("IHostCanvas.", traces({rawCurve(std::move(points))}));
    }
};

TEST_F(Polyline, OfOneSampleIsAMove) {
    EXPECT_EQ(line({{0.5, 0.5}}), (Lines{"IHostCanvas.MoveTo(195, 105)"}));
}

TEST_F(Polyline, WithoutASampleSetsOnlyThePen) {
    EXPECT_EQ(traces({rawCurve({})}), (Lines{"IHostPen.SetColor(7)"}));
}

TEST_F(Polyline, OfAReferenceIsDrawnAlike) {
    OrbitCurve curve = rawCurve({{0, 0}, {0.5, 0}, {2, 0}});
    const Lines raw = traces({curve});
    curve.kind = OrbitKind::Reference;
    EXPECT_EQ(traces({curve}), raw);
}

TEST_F(Polyline, MovesAlongTheEdgeAndResumesFromThere) {
    // Out to the right at 2, 0 and 2, 0.5, which lie on 1, 0 and 1, 0.5; then back inside.
    EXPECT_EQ(line({{0, 0}, {0.5, 0}, {2, 0}, {2, 0.5}, {0, 0.5}}),
              (Lines{"IHostCanvas.MoveTo(150, 150)", "IHostCanvas.LineTo(195, 150)",
                     "IHostCanvas.MoveTo(240, 150)", "IHostCanvas.MoveTo(240, 105)",
                     "IHostCanvas.LineTo(150, 105)"}));
}

TEST_F(Polyline, ReachesASampleOnTheLimitWithALine) {
    EXPECT_EQ(line({{0, 0}, {1, 1}}),
              (Lines{"IHostCanvas.MoveTo(150, 150)", "IHostCanvas.LineTo(240, 60)"}));
}

TEST_F(Polyline, GoesToTheOriginWithLimitsInTheWrongOrder) {
    setLimits({1, -1, -1, 1});
    EXPECT_EQ(line({{0, 0}, {0.5, 0}}), Lines(2, "IHostCanvas.MoveTo(0, 0)"));
    EXPECT_FALSE(graph.nearest().found);
}

TEST_F(Polyline, PassesOverASampleThatIsNoNumber) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(line({{0, 0}, {none, 0}, {0.5, 0}, {0, none}}),
              (Lines{"IHostCanvas.MoveTo(150, 150)", "IHostCanvas.LineTo(195, 150)"}));
}

TEST_F(Polyline, LiesOnTheLimitForAnInfiniteSample) {
    EXPECT_EQ(line({{0, 0}, {HUGE_VAL, -HUGE_VAL}, {0.5, 0}}),
              (Lines{"IHostCanvas.MoveTo(150, 150)", "IHostCanvas.MoveTo(240, 240)",
                     "IHostCanvas.LineTo(195, 150)"}));
}

TEST_F(Polyline, IsOneLineOverAllOfItsRuns) {
    std::vector<Point> points(1000, Point{0.5, 0.5});
    const Lines lines = line(points);
    EXPECT_EQ(callsOf("IHostCanvas.MoveTo", lines).size(), 1U);
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", lines), Lines(999, "IHostCanvas.LineTo(195, 105)"));
}

TEST_F(Polyline, OfTheSearchLeavesTheThirdValueAlone) {
    graph.setPointer({150, 150});
    traces({sampledCurve(OrbitKind::ShaftCenter, {{0, 0, 42}})});
    EXPECT_EQ(graph.nearest().extra, 42);
    traces({rawCurve({{0, 0}})});
    EXPECT_EQ(graph.nearest().kind, OrbitKind::Raw);
    EXPECT_EQ(graph.nearest().extra, 42);
}

TEST_F(Polyline, WithSamplesBeyondTheGuardSkipsThem) {
    // On a canvas of 100000 pixels the right half lies beyond 32767.
    layOut(100000, 100000);
    EXPECT_EQ(line({{-0.9, 0.9}, {0.9, 0.9}, {-0.9, 0.9}}).size(), 2U);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
