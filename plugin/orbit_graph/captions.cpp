#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/number_format.h"
#include "plugin/orbit_graph/orbit_graph.h"
#include "plugin/orbit_graph/primitives.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

/// One text height below the ticks' numbers, centred on the axis.
void drawXTitle(const CanvasRef& canvas, const GraphState& state, const std::wstring& text) {
    const TextSize size = measure(canvas, text);
    const Point axis = onCanvas(state, mappingOf(state).plotPoint(0, -1));
    drawTextAt(canvas, {axis.x - size.width * 0.5, axis.y + size.height}, text);
}

void drawYTitle(const CanvasRef& canvas, const GraphState& state, const std::wstring& text) {
    const TextSize size = measure(canvas, text);
    const Point axis = onCanvas(state, mappingOf(state).plotPoint(-1, 0));
    const Point start{axis.x - (size.height + size.height), axis.y + size.width * 0.5};
    drawTextUp(canvas, start, text);
}

}  // namespace

void OrbitGraph::drawAxisTitles(const CanvasRef& canvas, const std::wstring& unit) const {
    canvas->GetBrush()->SetStyle(BrushStyle::None);
    drawXTitle(canvas, state_, L"X axis (" + inserted(unit) + L")");
    drawYTitle(canvas, state_, L"Y axis (" + inserted(unit) + L")");
}

void OrbitGraph::drawError(const CanvasRef& canvas, const std::wstring& message) const {
    canvas->GetPen()->SetColor(state_.textColor);
    canvas->GetBrush()->SetStyle(BrushStyle::None);
    canvas->GetFont()->SetColor(state_.textColor);
    drawCornerText(canvas, message);
}

}  // namespace Meridax::VisualControls::Rotavue
