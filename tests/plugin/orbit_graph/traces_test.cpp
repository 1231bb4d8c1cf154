#include "tests/plugin/orbit_graph/graph_fixture.h"
#include "tests/plugin/orbit_graph/reentrant_host.h"

#include <gtest/gtest.h>

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Traces : testing::Test, LaidOutGraph {};

TEST_F(Traces, AreDrawnInTheirOrder) {
    OrbitCurve first = rawCurve({{0, 0}});
    OrbitCurve second = rawCurve({{1, 1}});
    second.info.color = 8;
    second.kind = OrbitKind::Reference;
    EXPECT_EQ(traces({first, second}),
              (Lines{"IHostPen.SetColor(7)", "IHostCanvas.MoveTo(150, 150)", "IHostPen.SetColor(8)",
                     "IHostCanvas.MoveTo(240, 60)"}));
}

TEST_F(Traces, OfAnotherKindAreNotDrawn) {
    for (const std::int32_t kind : {5, 6, -1, 1000}) {
        OrbitCurve curve = rawCurve({{0, 0}, {1, 1}});
        curve.samples = {{0, 0, 0}};
        curve.kind = static_cast<OrbitKind>(kind);
        EXPECT_TRUE(traces({curve}).empty()) << kind;
        EXPECT_FALSE(graph.nearest().found) << kind;
    }
}

TEST_F(Traces, WithoutARangeOnlyResetTheSearch) {
    graph.setPointer({150, 150});
    traces({rawCurve({{0, 0}})});
    ASSERT_TRUE(graph.nearest().found);
    for (const Range& limits : {Range{2, 2, -1, 1}, Range{-1, 1, 0, 0}}) {
        setLimits(limits);
        graph.setPointer({10, 20});
        EXPECT_TRUE(traces({rawCurve({{0, 0}, {2, 0}})}).empty());
        EXPECT_FALSE(graph.nearest().found);
        EXPECT_EQ(graph.nearest().position, (Point{10, 20}));
        EXPECT_EQ(graph.nearest().distance, std::numeric_limits<double>::max());
    }
}

TEST_F(Traces, KeepTheValuesOfAnEarlierMatch) {
    graph.setPointer({195, 150});
    traces({rawCurve({{0.5, 0}})});
    traces({rawCurve({{9, 9}})});
    EXPECT_FALSE(graph.nearest().found);
    EXPECT_EQ(graph.nearest().x, 0.5);
    EXPECT_EQ(graph.nearest().info.name, L"A");
    EXPECT_EQ(graph.nearest().position, (Point{195, 150}));
}

TEST_F(Traces, FindTheNearestSampleForAPointerOutsideThePlot) {
    graph.setPointer({290, 150});
    traces({rawCurve({{-0.5, 0}, {0.5, 0}, {0, 0.5}})});
    EXPECT_TRUE(graph.nearest().found);
    EXPECT_EQ(graph.nearest().x, 0.5);
    EXPECT_EQ(graph.nearest().position, (Point{195, 150}));
    EXPECT_EQ(graph.nearest().distance, 95);
}

TEST_F(Traces, SearchAcrossAllCurves) {
    graph.setPointer({150, 150});
    OrbitCurve far = rawCurve({{0.9, 0}});
    OrbitCurve near = rawCurve({{0.1, 0}, {0.8, 0}});
    near.info.unit = L"mil";
    OrbitCurve middle = rawCurve({{0.5, 0}});
    traces({far, near, middle});
    EXPECT_EQ(graph.nearest().x, 0.1);
    EXPECT_EQ(graph.nearest().info.unit, L"mil");
}

TEST_F(Traces, WithoutACurveDrawNothing) {
    EXPECT_TRUE(traces({}).empty());
}

TEST_F(Traces, WithoutARangeKeepTheLabelsOfTheLastFrame) {
    traces({sampledCurve(OrbitKind::ShaftCenter, {{0, 0, 1}})});
    setLimits({0, 0, 0, 0});
    traces({sampledCurve(OrbitKind::ShaftCenter, {{0, 0, 1}})});
    EXPECT_EQ(graph.state().placedLabels.size(), 1U);
    setLimits({-1, 1, -1, 1});
    traces({});
    EXPECT_TRUE(graph.state().placedLabels.empty());
}

TEST_F(Traces, TellTheCurveOfTheirMatchWhenAHostDrawsOthersFromInsideACall) {
    OrbitCurve outer = rawCurve({{0.9, 0}, {0.8, 0}, {0.1, 0}});
    outer.info.name = L"outer";
    OrbitCurve inner = rawCurve({{0.5, 0.5}});
    inner.info.name = L"inner";
    RecordingCanvas another;
    ReentrantHost host(HostKit::operation("IHostCanvas.LineTo"),
                       [&] { graph.drawTraces(another.ref(), {inner}); });
    canvas.host.gate.watch(&host, HostKit::groups({HostKit::CallGroup::Draw}));
    graph.setPointer({150, 150});
    graph.drawTraces(canvas.ref(), {outer});
    EXPECT_EQ(graph.nearest().x, 0.1);
    EXPECT_EQ(graph.nearest().info.name, L"outer");
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
