#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/framework/host/host_error.h"
#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>

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

/// The operations that lay out and measure, and those that draw.
std::vector<Step> allSteps() {
    std::vector<Step> steps = drawingSteps();
    steps.emplace_back([](OrbitGraph& graph, const CanvasRef& canvas) {
        graph.setSingleAxis(false);
        graph.invalidateLayout();
        graph.layout(canvas, {0, 0, 300, 300}, 2);
    });
    steps.emplace_back(
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.layoutLimitLabels(canvas); });
    steps.emplace_back(
        [](OrbitGraph& graph, const CanvasRef& canvas) { graph.layoutAxisStrips(canvas); });
    return steps;
}

void wholeFrame(OrbitGraph& graph, const CanvasRef& canvas) {
    for (const Step& step : allSteps())
        step(graph, canvas);
}

/// The error that a step raises; its status is 0 when it raises none.
Host::HostError errorOf(const Step& step, OrbitGraph& graph, const CanvasRef& canvas) {
    try {
        step(graph, canvas);
    } catch (const Host::HostError& error) {
        return error;
    }
    return Host::HostError(Host::Status::Ok);
}

std::uint32_t statusOf(const Step& step, OrbitGraph& graph, const CanvasRef& canvas) {
    return errorOf(step, graph, canvas).status;
}

struct Failure : testing::Test, LaidOutGraph {
    Failure() {
        graph.setDrawClearance(true);
        graph.setPointer({150, 150});
    }
};

TEST_F(Failure, NullCanvasRaisesInvalidPointer) {
    for (const Step& step : allSteps()) {
        const Host::HostError error = errorOf(step, graph, nullptr);
        EXPECT_EQ(error.status, Host::Status::InvalidPointer);
        EXPECT_EQ(error.interfaceId, Host::Guid{});
    }
}

TEST_F(Failure, NullCanvasIsEnoughWhereNothingIsAskedOfIt) {
    graph.invalidateLayout();
    graph.layout(nullptr, {0, 0, 400, 300}, 5);
    EXPECT_EQ(graph.state().graphRect, (Rectangle{110, 60, 290, 240}));
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

TEST_F(Failure, EveryFailingCallIsTheLastAndGivesTheReferencesBack) {
    canvas.recordMeasures();
    for (const Step& step : allSteps()) {
        // A failure at the n-th call, from the first call to beyond the last.
        for (std::int64_t n = 1;; ++n) {
            canvas.taken();
            canvas.host.gate.fail({{}, n, Host::Status::Unspecified});
            const std::uint32_t status = statusOf(step, graph, canvas.ref());
            EXPECT_EQ(canvas.host.references(), 0);
            if (status == 0) break;
            ASSERT_EQ(status, Host::Status::Unspecified);
            const Lines lines = canvas.taken();
            ASSERT_EQ(lines.size(), static_cast<std::size_t>(n));
            ASSERT_TRUE(lines.back().ends_with(" failed 0x80004005")) << lines.back();
            ASSERT_LT(n, 5000);
        }
        // Uses up the failure that did not come true.
        while (statusOf(step, graph, canvas.ref()) == 0) {
        }
    }
}

TEST_F(Failure, NamesTheInterfaceThatWasCalled) {
    struct Case {
        HostKit::Operation operation;
        Host::Guid interfaceId;
    };
    const Case cases[] = {
        {HostKit::operation("IHostCanvas.MoveTo"), Host::IHostCanvas::Identifier},
        {HostKit::operation("IHostCanvas.TextRect"), Host::IHostCanvas::Identifier},
        {HostKit::operation("IHostCanvas.TextOut"), Host::IHostCanvas::Identifier},
        {HostKit::operation("IHostCanvas.TextWidth"), Host::IHostCanvas::Identifier},
        {HostKit::operation("IHostCanvas.TextHeight"), Host::IHostCanvas::Identifier},
        {HostKit::operation("IHostPen.SetColor"), Host::IHostPen::Identifier},
        {HostKit::operation("IHostBrush.SetStyle"), Host::IHostBrush::Identifier},
        {HostKit::operation("IHostFont.SetColor"), Host::IHostFont::Identifier},
    };
    for (const Case& c : cases) {
        canvas.host.fail(c.operation);
        EXPECT_EQ(errorOf(wholeFrame, graph, canvas.ref()).interfaceId, c.interfaceId);
    }
}

/// A host without memory for a text of one operation.
struct Exhausted : HostKit::CallWatcher {
    explicit Exhausted(HostKit::Operation at) : operation(at) {}

    void onCall(HostKit::Operation called) override {
        if (called != operation) return;
        ++calls;
        throw std::bad_alloc();
    }

    HostKit::Operation operation;
    int calls = 0;
};

TEST_F(Failure, TextWithoutMemoryOnItsWayRaisesOutOfMemory) {
    for (const auto operation :
         {HostKit::operation("IHostCanvas.TextWidth"), HostKit::operation("IHostCanvas.TextHeight"),
          HostKit::operation("IHostCanvas.TextRect"), HostKit::operation("IHostCanvas.TextOut")}) {
        Exhausted host(operation);
        canvas.host.gate.watch(
            &host, HostKit::groups({HostKit::CallGroup::Draw, HostKit::CallGroup::Measure}));
        int raised = 0;
        for (const Step& step : allSteps()) {
            const std::uint32_t status = statusOf(step, graph, canvas.ref());
            if (status == 0) continue;
            EXPECT_EQ(status, Host::Status::OutOfMemory);
            ++raised;
        }
        // Three steps at least have a text for each of the four, and each ends at its first.
        EXPECT_GE(raised, 3);
        EXPECT_EQ(raised, host.calls);
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
