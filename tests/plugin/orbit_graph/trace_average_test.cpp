#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct AveragedOrbit : testing::Test, LaidOutGraph {
    Lines curve(std::vector<CurveSample> samples) {
        return callsOf("IHostCanvas.",
                       traces({sampledCurve(OrbitKind::Average, std::move(samples))}));
    }
};

TEST_F(AveragedOrbit, HasADotAndAGapAtEachRevolution) {
    EXPECT_EQ(traces({sampledCurve(OrbitKind::Average,
                                   {{0, 0, 0}, {0.5, 0, 90}, {0, 0.5, 350}, {-0.5, 0, 360}})}),
              (Lines{"IHostPen.SetColor(7)",
                     // Phase 0: a dot, a move and a line to itself.
                     "IHostPen.SetStyle(0)", "IHostPen.SetColor(7)", "IHostBrush.SetStyle(0)",
                     "IHostBrush.SetColor(7)", "IHostCanvas.Ellipse(147, 153, 153, 147)",
                     "IHostCanvas.MoveTo(150, 150)", "IHostCanvas.LineTo(150, 150)",
                     // 90; then nothing at 350.
                     "IHostCanvas.LineTo(195, 150)",
                     // 360 is phase 0 again.
                     "IHostPen.SetStyle(0)", "IHostPen.SetColor(7)", "IHostBrush.SetStyle(0)",
                     "IHostBrush.SetColor(7)", "IHostCanvas.Ellipse(102, 153, 108, 147)",
                     "IHostCanvas.MoveTo(105, 150)", "IHostCanvas.LineTo(105, 150)"}));
}

TEST_F(AveragedOrbit, HasNoMoveBeforeAFirstLineThatBeginsNoRevolution) {
    EXPECT_EQ(curve({{0.5, 0, 10}}), (Lines{"IHostCanvas.LineTo(195, 150)"}));
}

TEST_F(AveragedOrbit, HasADotAtEachNegativePhase) {
    EXPECT_EQ(callsOf("IHostCanvas.Ellipse", curve({{0, 0, -10}, {0.5, 0, -370}, {0, 0, 10}})),
              (Lines{"IHostCanvas.Ellipse(147, 153, 153, 147)",
                     "IHostCanvas.Ellipse(192, 153, 198, 147)"}));
}

TEST_F(AveragedOrbit, IsJoinedUpTo340Degrees) {
    EXPECT_EQ(curve({{0.5, 0, 340}, {0, 0, 340.5}, {0, 0.5, 700}}),
              (Lines{"IHostCanvas.LineTo(195, 150)", "IHostCanvas.LineTo(150, 105)"}));
}

TEST_F(AveragedOrbit, IsNotSearchedInItsGap) {
    graph.setPointer({150, 150});
    curve({{0.5, 0, 90}, {0, 0, 350}});
    EXPECT_EQ(graph.nearest().x, 0.5);
    EXPECT_EQ(graph.nearest().kind, OrbitKind::Average);
}

TEST_F(AveragedOrbit, MovesToASampleOutsideWhateverItsPhase) {
    EXPECT_EQ(curve({{2, 0, 0}, {2, 0.5, 350}, {0, 0, 90}}),
              (Lines{"IHostCanvas.MoveTo(240, 150)", "IHostCanvas.MoveTo(240, 105)",
                     "IHostCanvas.LineTo(150, 150)"}));
}

TEST_F(AveragedOrbit, PassesOverAPhaseThatIsNoNumber) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(curve({{0, 0, none}, {0, 0, infinite}}).empty());
}

TEST_F(AveragedOrbit, BeginsARevolutionBelowTheSmallestStepFromOne) {
    const auto dots = [&](double phase) {
        return callsOf("IHostCanvas.Ellipse", curve({{0, 0, phase}})).size();
    };
    constexpr double Epsilon = 2.220446049250313e-16;
    EXPECT_EQ(dots(std::nextafter(Epsilon, 0)), 1U);
    EXPECT_EQ(dots(Epsilon), 0U);
    EXPECT_EQ(dots(-0.0), 1U);
}

TEST_F(AveragedOrbit, IsSearchedAtNegativePhases) {
    graph.setPointer({150, 150});
    curve({{0.5, 0, -10}, {0.25, 0, -350}});
    EXPECT_TRUE(graph.nearest().found);
    EXPECT_EQ(graph.nearest().x, 0.25);
}

TEST_F(AveragedOrbit, IsNotSearchedOutside) {
    // The pointer stands where the sample outside lies on the limit.
    graph.setPointer({240, 150});
    curve({{2, 0, 90}, {0, 0, 90}});
    EXPECT_EQ(graph.nearest().x, 0);
    EXPECT_EQ(graph.nearest().distance, 90);
}

TEST_F(AveragedOrbit, DropsDotsAndLinesBeyondTheGuard) {
    // The half width is (100000 - 120) / 2 = 49940: -0.75 lies at 50000 - 37455.
    layOut(100000, 100000);
    EXPECT_EQ(curve({{0.5, 0, 0}, {2, 0, 90}, {-0.75, 0.75, 90}}),
              (Lines{"IHostCanvas.LineTo(12545, 12545)"}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
