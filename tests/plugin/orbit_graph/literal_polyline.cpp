#include "tests/plugin/orbit_graph/literal_polyline.h"

#include "plugin/framework/host/drawing/host_pen.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

double literalLimited(double value, double lower, double upper) {
    if (value < lower) value = lower;
    if (value > upper) value = upper;
    return value;
}

Rectangle literalMarkerBox(const GraphState& s, double x, double y) {
    if (s.xMin >= s.xMax || s.yMin >= s.yMax) return {0, 0, 0, 0};
    const double a = (x - s.xMin) / (s.xMax - s.xMin);
    const double b = (y - s.yMin) / (s.yMax - s.yMin);
    const double nx = a + a - 1;
    const double ny = b + b - 1;
    const double hw = (s.graphRect.right - s.graphRect.left) * 0.5;
    const double hh = (s.graphRect.bottom - s.graphRect.top) * 0.5;
    const double cx = (s.graphRect.right - s.graphRect.left) * 0.5 + s.graphRect.left;
    const double cy = (s.graphRect.bottom - s.graphRect.top) * 0.5 + s.graphRect.top;
    const double r = 3.0 / s.scaleX;
    const double height = s.canvasRect.bottom - s.canvasRect.top;
    return {nx * hw - r + cx, height - (ny * hw - r + cy), nx * hh + r + cx,
            height - (ny * hh + r + cy)};
}

bool literalInRange(const Point& p) {
    return p.x >= -32767.0 && p.x <= 32767.0 && p.y >= -32767.0 && p.y <= 32767.0;
}

void literalStep(const CanvasRef& canvas, const GraphState& s, const OrbitCurve& curve,
                 std::size_t i, NearestSample& nearest) {
    const Point& sample = curve.points[i];
    const double cx = literalLimited(sample.x, s.xMin, s.xMax);
    const double cy = literalLimited(sample.y, s.yMin, s.yMax);
    const Rectangle m = literalMarkerBox(s, cx, cy);
    const bool inside =
        sample.x >= s.xMin && sample.x <= s.xMax && sample.y >= s.yMin && sample.y <= s.yMax;
    const Point p{(m.right - m.left) * 0.5 + m.left, (m.bottom - m.top) * 0.5 + m.top};
    const double dx = p.x - s.pointer.x;
    const double dy = p.y - s.pointer.y;
    const double d = std::sqrt(dx * dx + dy * dy);
    if (inside && d < nearest.distance) {
        nearest = {cx, cy, nearest.extra, curve.info, curve.kind, p, d, true};
    }
    if (!literalInRange(p)) return;
    const auto x = static_cast<std::int32_t>(p.x);
    const auto y = static_cast<std::int32_t>(p.y);
    if (i == 0 || !inside) {
        canvas->MoveTo(x, y);
    } else {
        canvas->LineTo(x, y);
    }
}

}  // namespace

NearestSample drawLiterally(const CanvasRef& canvas, const GraphState& state,
                            const std::vector<OrbitCurve>& curves) {
    NearestSample nearest = state.nearest;
    nearest.distance = 1.7976931348623157e308;
    nearest.found = false;
    nearest.position = state.pointer;
    if (state.xMax - state.xMin == 0 || state.yMax - state.yMin == 0) return nearest;
    for (const OrbitCurve& curve : curves) {
        canvas->GetPen()->SetColor(curve.info.color);
        for (std::size_t i = 0; i < curve.points.size(); ++i)
            literalStep(canvas, state, curve, i, nearest);
    }
    return nearest;
}

}  // namespace Meridax::VisualControls::Rotavue
