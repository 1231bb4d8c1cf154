#include "tests/plugin/orbit_graph/graph_fixture.h"
#include "tests/plugin/orbit_graph/reentrant_host.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Readout : testing::Test, LaidOutGraph {
    Lines readout() {
        canvas.taken();
        graph.drawReadout(canvas.ref());
        return canvas.taken();
    }

    /// The text that it shows; empty when nothing is drawn.
    std::string text() {
        const Lines lines = callsOf("IHostCanvas.TextRect", readout());
        if (lines.empty()) return {};
        const std::size_t first = lines[0].find('"') + 1;
        return lines[0].substr(first, lines[0].rfind('"') - first);
    }
};

TEST_F(Readout, IsACrosshairAndATextInTheCorner) {
    graph.setDecimals(2);
    graph.setPointer({200, 150});
    traces({rawCurve({{0.5, 0}})});
    // The arms are 21 pixels long. 24 characters of 8 pixels, from round(10.5) on.
    EXPECT_EQ(
        readout(),
        (Lines{"IHostPen.SetColor(3)", "IHostCanvas.MoveTo(195, 129)",
               "IHostCanvas.LineTo(195, 171)", "IHostCanvas.MoveTo(174, 150)",
               "IHostCanvas.LineTo(216, 150)", "IHostBrush.SetStyle(1)", "IHostFont.SetColor(7)",
               "IHostCanvas.TextRect(11, 11, 203, 27, \"X= 0.50 um; Y= 0.00 um; \", 256)"}));
}

TEST_F(Readout, StandsAtThePointerWhenNoSampleIsInside) {
    graph.setPointer({20, 150});
    traces({rawCurve({{9, 9}}), rawCurve({})});
    EXPECT_EQ(readout().at(1), "IHostCanvas.MoveTo(20, 129)");
    // Zeros and an empty unit before the first match, in the default colour.
    EXPECT_EQ(text(), "X= 0 ; Y= 0 ; ");
    EXPECT_EQ(callsOf("IHostFont.SetColor", readout()), (Lines{"IHostFont.SetColor(16777215)"}));
}

TEST_F(Readout, ShowsAnEarlierMatchWhenNoSampleIsInside) {
    graph.setPointer({240, 60});
    traces({rawCurve({{1, 1}})});
    graph.setPointer({20, 150});
    traces({rawCurve({{9, 9}})});
    EXPECT_EQ(text(), "X= 1 um; Y= 1 um; ");
    EXPECT_EQ(readout().at(1), "IHostCanvas.MoveTo(20, 129)");
}

TEST_F(Readout, LooksAtThePlaceOfTheSampleNotAtThePointer) {
    graph.setPointer({500, 150});
    traces({rawCurve({{1, 0}})});
    EXPECT_EQ(readout().at(1), "IHostCanvas.MoveTo(240, 129)");
}

TEST_F(Readout, IsNothingOutsideTheCanvas) {
    for (const Point& beyond : {Point{301, 150}, {150, 301}, {-1, 150}, {150, -1}}) {
        graph.setPointer(beyond);
        traces({});
        EXPECT_TRUE(readout().empty()) << beyond.x << " " << beyond.y;
    }
    // The edges belong to the canvas.
    for (const Point& edge : {Point{300, 150}, {150, 300}, {0, 150}, {150, 0}, {0, 0}}) {
        graph.setPointer(edge);
        traces({});
        EXPECT_EQ(callsOf("IHostCanvas.LineTo", readout()).size(), 2U) << edge.x << " " << edge.y;
    }
}

TEST_F(Readout, EndsWithTheSpeedOfAShaftCentre) {
    graph.setPointer({150, 150});
    traces({sampledCurve(OrbitKind::ShaftCenter, {{0, 0, 2999.6}})});
    EXPECT_EQ(text(), "X= 0 um; Y= 0 um; RPM= 3000");
    for (const std::int32_t time : {1, 7, -1}) {
        graph.setDisplayType(time);
        EXPECT_EQ(text(), "X= 0 um; Y= 0 um; Time= 2999.6s");
    }
}

TEST_F(Readout, HasNoThirdItemForAnyOtherKind) {
    graph.setPointer({150, 150});
    graph.setDisplayType(1);
    traces({rawCurve({{0, 0}})});
    EXPECT_EQ(text(), "X= 0 um; Y= 0 um; ");
    traces({sampledCurve(OrbitKind::Average, {{0, 0, 90}})});
    EXPECT_EQ(text(), "X= 0 um; Y= 0 um; ");
}

TEST_F(Readout, TestsEachEndOfTheCrosshairByItself) {
    layOut(40000, 40000);
    graph.setPointer({32760, 20000});
    traces({});
    // The right arm ends at 32781, beyond the guard.
    EXPECT_EQ(callsOf("IHostCanvas.LineTo", readout()),
              (Lines{"IHostCanvas.LineTo(32760, 20021)"}));
}

TEST_F(Readout, HasArmsOfANegativeFontHeightToo) {
    canvas.host.description.canvas.fontHeight = -21;
    graph.setPointer({100, 100});
    traces({});
    EXPECT_EQ(callsOf("IHostCanvas.", readout()),
              (Lines{"IHostCanvas.MoveTo(100, 79)", "IHostCanvas.LineTo(100, 121)",
                     "IHostCanvas.MoveTo(79, 100)", "IHostCanvas.LineTo(121, 100)",
                     "IHostCanvas.TextRect(11, 11, 123, 27, \"X= 0 ; Y= 0 ; \", 256)"}));
}

TEST_F(Readout, EndsAUnitAtItsFirstZeroCharacter) {
    OrbitCurve curve = rawCurve({{0, 0}});
    curve.info.unit = std::wstring(L"um\0mil", 6);
    graph.setPointer({150, 150});
    traces({curve});
    EXPECT_EQ(text(), "X= 0 um; Y= 0 um; ");
}

TEST_F(Readout, IsThatOfOneSampleWhenAHostSearchesAnewFromInsideACall) {
    graph.setPointer({150, 150});
    traces({rawCurve({{0, 0}})});
    const Lines whole = readout();
    RecordingCanvas another;
    ReentrantHost host(HostKit::operation("IHostCanvas.MoveTo"), [&] {
        OrbitCurve other = rawCurve({{1, 1}});
        other.info.color = 9;
        graph.drawTraces(another.ref(), {other});
    });
    canvas.host.gate.watch(&host, HostKit::groups({HostKit::CallGroup::Draw}));
    graph.drawReadout(canvas.ref());
    EXPECT_EQ(host.lines, whole);
    EXPECT_EQ(graph.nearest().x, 1);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
