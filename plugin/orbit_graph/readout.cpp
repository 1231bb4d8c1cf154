#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/number_format.h"
#include "plugin/orbit_graph/orbit_graph.h"
#include "plugin/orbit_graph/primitives.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

void drawCrosshair(const CanvasRef& canvas, const Point& at, double arm) {
    const ClippedCanvas clipped(canvas);
    clipped.moveTo({at.x, at.y - arm});
    clipped.lineTo({at.x, at.y + arm});
    clipped.moveTo({at.x - arm, at.y});
    clipped.lineTo({at.x + arm, at.y});
}

/// The third value of a ShaftCenter sample; the other kinds have none.
std::wstring thirdItem(const NearestSample& nearest, std::int32_t displayType) {
    if (nearest.kind != OrbitKind::ShaftCenter) return {};
    if (displayType == 0) return L"RPM= " + formatValue(L"%.0f", nearest.extra);
    return L"Time= " + formatValue(L"%.1f", nearest.extra) + L"s";
}

/// Both axes have the unit of the sample's curve.
std::wstring readoutText(const NearestSample& nearest, const std::wstring& format) {
    const std::wstring unit = inserted(nearest.info.unit);
    return L"X= " + formatValue(format, nearest.x) + L" " + unit + L"; Y= " +
           formatValue(format, nearest.y) + L" " + unit + L"; ";
}

}  // namespace

void OrbitGraph::drawReadout(const CanvasRef& canvas) const {
    // A copy: a host may come back with another frame from inside a call, and crosshair and text
    // are those of one sample.
    const NearestSample nearest = state_.nearest;
    if (!holds(state_.canvasRect, nearest.position)) return;
    canvas->GetPen()->SetColor(state_.textColor);
    drawCrosshair(canvas, nearest.position, fontLength(canvas));
    canvas->GetBrush()->SetStyle(BrushStyle::None);
    canvas->GetFont()->SetColor(nearest.info.color);
    drawCornerText(canvas,
                   readoutText(nearest, valueFormat()) + thirdItem(nearest, state_.displayType));
}

}  // namespace Meridax::VisualControls::Rotavue
