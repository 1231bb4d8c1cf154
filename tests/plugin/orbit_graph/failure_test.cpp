#include "plugin/framework/host/host_error.h"
#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <functional>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Step = std::function<void(OrbitGraph&, const CanvasRef&)>;

/// Curves of all kinds, with samples inside.
std::vector<OrbitCurve> allKinds() {
    OrbitCurve harmonic = curveOf(OrbitKind::Harmonic);
    harmonic.points = {{0.5, 0}, {0, 0.5}};
    return {rawCurve({{0, 0}, {0.5, 0}}), harmonic,
            sampledCurve(OrbitKind::Average, {{0, 0, 0}, {0.5, 0, 90}}),
            sampledCurve(OrbitKind::ShaftCenter, {{0, 0, 1}, {0.5, 0, 2}})};
}

/// The operations that draw.
std::vector<Step> drawingSteps() {
    return {
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.drawFrame(canvas); },
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.drawScaleLabels(canvas); },
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.drawAxisTitles(canvas, L"um"); },
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.drawError(canvas, L"Oops"); },
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.drawClearanceEllipse(canvas); },
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.drawSensorBadges(canvas); },
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.drawTraces(canvas, allKinds()); },
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.drawReadout(canvas); },
        [](OrbitGraph& graph, const CanvasRef& canvas) {
            graph.drawLegendLines(canvas, allKinds());
        },
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.drawLegendRow(canvas, allKinds()); },
    };
}

/// The status that a step raises; 0 when it raises none.
std::uint32_t statusOf(const Step& step, OrbitGraph& graph, const CanvasRef& canvas) {
    try {
        step(graph, canvas);
    } catch (const Host::HostError& error) {
        return error.status;
    }
    return 0;
}

struct Failure : testing::Test, LaidOutGraph {
    Failure() {
        graph.setDrawClearance(true);
        graph.setPointer({150, 150});
    }
};

TEST_F(Failure, NullCanvasRaisesInvalidPointer) {
    for (const Step& step : drawingSteps())
        EXPECT_EQ(statusOf(step, graph, nullptr), Host::Status::InvalidPointer);
    EXPECT_THROW(graph.layoutLimitLabels(nullptr), Host::HostError);
    EXPECT_THROW(graph.layoutAxisStrips(nullptr), Host::HostError);
}

TEST_F(Failure, NullPenBrushOrFontRaisesInvalidPointer) {
    // An axis title needs no pen and a legend none either; the frame needs all three.
    const auto frame = drawingSteps()[0];
    for (const auto operation :
         {HostKit::operation("IHostCanvas.GetPen"), HostKit::operation("IHostCanvas.GetBrush"),
          HostKit::operation("IHostCanvas.GetFont")}) {
        HostKit::Operations nulls;
        nulls.set(HostKit::indexOf(operation));
        canvas.host.gate.setNulls(nulls);
        EXPECT_EQ(statusOf(frame, graph, canvas.ref()), Host::Status::InvalidPointer);
    }
}

TEST_F(Failure, EveryFailingCallEndsItsStepAndGivesTheReferencesBack) {
    for (const Step& step : drawingSteps()) {
        // A failure at the n-th call, from the first call to beyond the last.
        for (std::int64_t n = 1;; ++n) {
            canvas.host.gate.fail({{}, n, Host::Status::Unspecified});
            const std::uint32_t status = statusOf(step, graph, canvas.ref());
            EXPECT_EQ(canvas.host.references(), 0);
            if (status == 0) break;
            ASSERT_EQ(status, Host::Status::Unspecified);
            ASSERT_LT(n, 5000);
        }
        // Uses up the failure that did not come true.
        while (statusOf(step, graph, canvas.ref()) == 0) {
        }
    }
}

TEST_F(Failure, LeavesTheSearchWhereItWas) {
    canvas.host.fail(HostKit::operation("IHostCanvas.LineTo"));
    // The second sample is nearer and was found before its line failed.
    graph.setPointer({200, 150});
    EXPECT_THROW(traces({rawCurve({{0, 0}, {0.5, 0}, {0.52, 0}})}), Host::HostError);
    EXPECT_EQ(graph.nearest().x, 0.5);
    EXPECT_TRUE(graph.nearest().found);
}

TEST_F(Failure, LeavesTheNextFrameInOrder) {
    graph.drawFrame(canvas.ref());
    const Lines whole = canvas.taken();
    canvas.host.fail(HostKit::operation("IHostCanvas.Arc"));
    EXPECT_THROW(graph.drawFrame(canvas.ref()), Host::HostError);
    canvas.taken();
    graph.drawFrame(canvas.ref());
    EXPECT_EQ(canvas.taken(), whole);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
