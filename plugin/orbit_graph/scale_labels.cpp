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
    const double textWidth = canvas->TextWidth(tick.text);
    const Point plotPoint = mappingOf(state).plotPoint(tick.unit, -1);
    const Point start = placedAlongX(state, tick.value, plotPoint, textWidth);
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
    const std::vector<Tick> xTicks = axisTicks(state_.xMin, state_.xMax, positions, format);
    const std::vector<Tick> yTicks = axisTicks(state_.yMin, state_.yMax, positions, format);
    for (std::size_t i = 0; i < xTicks.size(); ++i) {
        drawXTick(canvas, state_, xTicks[i], xColor);
        drawYTick(canvas, state_, yTicks[i], yColor);
    }
    for (const AxisLimitLabel& label : state_.limitLabels)
        drawLimitLabel(canvas, state_, label, format);
}

}  // namespace Meridax::VisualControls::Rotavue
