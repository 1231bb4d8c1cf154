#pragma once

#include "plugin/orbit_graph/graph_state.h"
#include "plugin/orbit_graph/primitives.h"

namespace Meridax::VisualControls::Rotavue {

// Where the text of a value on an axis begins, on the canvas. At the lower end it starts at the
// corner, at the upper end it ends at the corner, elsewhere it is centred on its tick. Values are
// compared with the limits exactly.

/// For a text on the x axis whose tick stands at a plot point.
Point placedAlongX(const GraphState& state, double value, const Point& plotPoint, double textWidth);

/// For a text on the y axis, which runs upward.
Point placedAlongY(const GraphState& state, double value, const Point& plotPoint,
                   const TextSize& size);

}  // namespace Meridax::VisualControls::Rotavue
