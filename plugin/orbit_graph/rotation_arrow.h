#pragma once

#include "plugin/orbit_graph/graph_state.h"
#include "plugin/orbit_graph/primitives.h"

#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// The arc in the upper right corner of the plot: from 20 degrees at `start` to 70 at `end`.
struct RotationArc {
    Rectangle box;
    Point start;
    Point end;
};

RotationArc rotationArc(const GraphState& state);

/// The arrow's head: for direction 0 at the upper end of the arc, for 1 at its lower end. For any
/// other number it lies, unturned, at the origin of the canvas.
std::vector<Point> arrowHead(const RotationArc& arc, std::int32_t direction);

void drawRotationArrow(const CanvasRef& canvas, const GraphState& state);

}  // namespace Meridax::VisualControls::Rotavue
