#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/label_placement.h"
#include "plugin/orbit_graph/number_format.h"
#include "plugin/orbit_graph/orbit_graph.h"
#include "plugin/orbit_graph/primitives.h"
#include "plugin/orbit_graph/scales.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// Draws at 0.8 of the font's height. Callers measure at the full height, so a tick's text stands a
/// little beside the centre of its tick; that is kept.
void drawTickText(const CanvasRef& canvas, const Point& point, const std::wstring& text,
                  Color color, bool vertical) {
    const auto font = canvas->GetFont();
    const std::int32_t height = font->GetHeight();
    font->SetHeight(canvasInteger(std::round(height * 0.8)));
    canvas->GetBrush()->SetStyle(BrushStyle::None);
    font->SetColor(color);
    if (vertical) {
        drawTextUp(canvas, point, text);
    } else {
        drawTextAt(canvas, point, text);
    }
    font->SetHeight(height);
}

void drawXTick(const CanvasRef& canvas, const GraphState& state, const Tick& tick, Color color) {
    const double width = textWidth(canvas, tick.text);
    const Point plotPoint = mappingOf(state).plotPoint(tick.unit, -1);
    const Point start = placedAlongX(state, tick.value, plotPoint, width);
    if (!tick.atLimit) drawTickText(canvas, start, tick.text, color, false);
}

void drawYTick(const CanvasRef& canvas, const GraphState& state, const Tick& tick, Color color) {
    const TextSize size = measure(canvas, tick.text);
    const Point plotPoint = mappingOf(state).plotPoint(-1, tick.unit);
    const Point start = placedAlongY(state, tick.value, plotPoint, size);
    if (!tick.atLimit) drawTickText(canvas, start, tick.text, color, true);
}

/// Unlike the ticks, the limits stand on a filled ground and have the full height.
void drawLimitLabel(const CanvasRef& canvas, const GraphState& state, const AxisLimitLabel& label,
                    const std::wstring& format) {
    setSolidBrush(canvas, state.gridColor);
    const auto font = canvas->GetFont();
    font->SetColor(label.hovered ? state.hoverColor : state.textColor);
    const std::wstring text = formatValue(format, label.value);
    if (label.vertical) {
        drawTextUp(canvas, {label.box.left, label.box.bottom}, text);
    } else {
        drawTextBox(canvas, label.box, text, TextFormat::Left);
    }
    font->SetColor(state.textColor);
}

}  // namespace

void OrbitGraph::drawScaleLabels(const CanvasRef& canvas) const {
    canvas->GetBrush()->SetStyle(BrushStyle::None);
    const std::int64_t positions = tickPositions(state_.graphType, state_.tickCount);
    const std::wstring format = valueFormat();
    const bool stripsReact = !anyLimitLabelHovered();
    const Color xColor = state_.xStripHovered && stripsReact ? state_.hoverColor : state_.textColor;
    const Color yColor = state_.yStripHovered && stripsReact ? state_.hoverColor : state_.textColor;
    AxisTicks xTicks(state_.xMin, state_.xMax, positions, format);
    AxisTicks yTicks(state_.yMin, state_.yMax, positions, format);
    for (std::int64_t i = 0; i < positions; ++i) {
        drawXTick(canvas, state_, xTicks.next(), xColor);
        drawYTick(canvas, state_, yTicks.next(), yColor);
    }
    const auto labels = state_.limitLabels;  // Another frame may come between two of them.
    for (const AxisLimitLabel& label : labels)
        drawLimitLabel(canvas, state_, label, format);
}

}  // namespace Meridax::VisualControls::Rotavue
