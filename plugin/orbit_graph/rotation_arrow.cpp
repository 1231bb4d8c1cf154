#include "plugin/orbit_graph/rotation_arrow.h"

#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/graph_views.h"

#include <algorithm>
#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr double Degrees20 = 0.3490658503988659;
constexpr double Degrees155 = 2.705260340591211;
constexpr double Degrees295 = 5.1487212933832724;

/// The plot on the canvas with its edges in order, also when it is turned over.
Rectangle plotOnCanvas(const GraphState& state) {
    const Rectangle& plot = state.graphRect;
    const Point low{std::min(plot.left, plot.right), std::min(plot.top, plot.bottom)};
    const Point high{std::max(plot.left, plot.right), std::max(plot.top, plot.bottom)};
    const Point first = onCanvas(state, low);
    const Point second = onCanvas(state, high);
    return {first.x, first.y, second.x, second.y};
}

std::vector<Point> moved(const std::vector<Point>& shape, double angle, const Point& place) {
    std::vector<Point> result;
    result.reserve(shape.size());
    for (const Point& point : shape) {
        const Point turned = turn(point, angle, {0, 0});
        result.push_back({turned.x + place.x, turned.y + place.y});
    }
    return result;
}

}  // namespace

RotationArc rotationArc(const GraphState& state) {
    const Rectangle plot = plotOnCanvas(state);
    const double third = widthOf(plot) / 3.0;
    const Point corner{plot.right, plot.bottom};
    const Rectangle box{corner.x - third, corner.y, corner.x, corner.y + third};
    const Point centre = centreOf(box);
    const double middle = std::round(box.right - widthOf(box) * 0.5);
    return {box, turn({box.right, centre.y}, Degrees20, centre),
            turn({middle, box.top}, -Degrees20, centre)};
}

std::vector<Point> arrowHead(const RotationArc& arc, std::int32_t direction) {
    std::vector<Point> shape{{0, 0}, {0, 5}, {10, 0}, {0, -5}};
    if (direction == 0) return moved(shape, Degrees155, arc.end);
    if (direction == 1) return moved(shape, Degrees295, arc.start);
    return shape;
}

void drawRotationArrow(const CanvasRef& canvas, const GraphState& state) {
    const RotationArc arc = rotationArc(state);
    const ClippedCanvas clipped(canvas);
    const auto pen = canvas->GetPen();
    pen->SetColor(state.axisColor);
    pen->SetWidth(2);
    clipped.arc(arc.box, arc.start, arc.end);
    pen->SetWidth(1);
    setSolidBrush(canvas, state.axisColor);
    clipped.polygon(arrowHead(arc, state.rotationDirection));
}

}  // namespace Meridax::VisualControls::Rotavue
