#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/orbit_graph.h"
#include "plugin/orbit_graph/primitives.h"
#include "plugin/orbit_graph/rotation_arrow.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

// The lists are copied before they are drawn: a host may come back with another frame from inside a
// call, and the layout of that one replaces them.

void drawGridBackground(const CanvasRef& canvas, const GraphState& state) {
    const std::vector<Segment> lines = state.gridLines;
    fillRectangle(canvas, viewOf(state).apply(state.graphRect), state.backgroundColor,
                  state.borderColor);
    setSolidPen(canvas, state.gridColor);
    drawSegments(canvas, lines);
}

void drawCircleBackground(const CanvasRef& canvas, const GraphState& state) {
    const std::vector<Rectangle> rings = state.ringBoxes;
    const std::vector<Segment> cross = state.crossLines;
    fillEllipse(canvas, viewOf(state).apply(state.graphRect), state.backgroundColor,
                state.textColor);
    canvas->GetPen()->SetStyle(PenStyle::Solid);
    strokeEllipses(canvas, rings, state.gridColor);
    canvas->GetPen()->SetColor(state.gridColor);
    drawSegments(canvas, cross);
}

void drawBackground(const CanvasRef& canvas, const GraphState& state) {
    setSolidPen(canvas, state.borderColor);
    const auto brush = canvas->GetBrush();
    brush->SetColor(state.backgroundColor);
    brush->SetStyle(BrushStyle::Solid);
    canvas->GetFont()->SetColor(state.textColor);
    if (state.graphType == GraphType::Grid) {
        drawGridBackground(canvas, state);
    } else {
        drawCircleBackground(canvas, state);
    }
}

}  // namespace

void OrbitGraph::drawFrame(const CanvasRef& canvas) const {
    const std::vector<Segment> edges = state_.edgeLines;
    drawBackground(canvas, state_);
    canvas->GetPen()->SetColor(state_.axisColor);
    drawSegments(canvas, edges);
    setSolidPen(canvas, state_.textColor);
    canvas->GetBrush()->SetStyle(BrushStyle::None);
    drawRotationArrow(canvas, state_);
    canvas->GetFont()->SetColor(state_.textColor);
}

}  // namespace Meridax::VisualControls::Rotavue
