#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/number_format.h"
#include "plugin/orbit_graph/orbit_graph.h"
#include "plugin/orbit_graph/primitives.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

std::wstring labelOf(const OrbitCurve& curve) {
    return inserted(curve.info.name) + L" (" + inserted(curve.info.unit) + L")";
}

std::vector<std::wstring> rowLabels(const std::vector<OrbitCurve>& curves) {
    std::vector<std::wstring> labels;
    labels.reserve(curves.size());
    for (const OrbitCurve& curve : curves)
        labels.push_back(labelOf(curve) + (&curve == &curves.back() ? L"" : L", "));
    return labels;
}

std::wstring joined(const std::vector<std::wstring>& labels) {
    std::wstring all;
    for (const std::wstring& label : labels)
        all += label;
    return all;
}

/// Beyond the y scale and the y title.
double legendStart(const CanvasRef& canvas, const GraphState& state) {
    return state.graphRect.left - 3.0 * lineHeight(canvas);
}

void drawLabel(const CanvasRef& canvas, const GraphState& state, const std::wstring& label,
               Color color) {
    canvas->GetBrush()->SetColor(state.backgroundColor);
    canvas->GetFont()->SetColor(color);
    drawTextUp(canvas, {state.legendX, state.legendY}, label);
}

}  // namespace

void OrbitGraph::drawLegendLines(const CanvasRef& canvas, const std::vector<OrbitCurve>& curves) {
    if (curves.empty()) return;
    state_.legendX = legendStart(canvas, state_);
    for (const OrbitCurve& curve : curves) {
        const std::wstring label = labelOf(curve);
        state_.legendY = textWidth(canvas, label) * 0.5 + centreOf(state_.graphRect).y;
        drawLabel(canvas, state_, label, curve.info.color);
        state_.legendX -= textHeight(canvas, label);
    }
}

void OrbitGraph::drawLegendRow(const CanvasRef& canvas, const std::vector<OrbitCurve>& curves) {
    const std::vector<std::wstring> labels = rowLabels(curves);
    const double halfWidth = std::trunc(textWidth(canvas, joined(labels)) / 2);
    state_.legendX = legendStart(canvas, state_);
    state_.legendY = halfWidth + centreOf(state_.graphRect).y;
    for (std::size_t i = 0; i < curves.size(); ++i) {
        drawLabel(canvas, state_, labels[i], curves[i].info.color);
        state_.legendY -= textWidth(canvas, labels[i]);
    }
}

}  // namespace Meridax::VisualControls::Rotavue
