#include "plugin/orbit_graph/label_placement.h"

#include "plugin/orbit_graph/graph_views.h"

namespace Meridax::VisualControls::Rotavue {

Point placedAlongX(const GraphState& state, double value, const Point& plotPoint,
                   double textWidth) {
    Point start = plotPoint;
    if (value == state.xMax) {
        start.x -= textWidth;
    } else if (value != state.xMin) {
        start.x -= textWidth * 0.5;
    }
    return onCanvas(state, start);
}

Point placedAlongY(const GraphState& state, double value, const Point& plotPoint,
                   const TextSize& size) {
    Point start = plotPoint;
    if (value == state.yMax) {
        start.y -= size.width;
    } else if (value != state.yMin) {
        start.y -= size.width * 0.5;
    }
    start.x -= size.height;
    return onCanvas(state, start);
}

}  // namespace Meridax::VisualControls::Rotavue
