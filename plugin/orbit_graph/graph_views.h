#pragma once

#include "plugin/orbit_graph/graph_state.h"
#include "plugin/orbit_graph/plot_mapping.h"
#include "plugin/orbit_graph/view_transform.h"

namespace Meridax::VisualControls::Rotavue {

// The values that the drawing steps take from the state.

inline Range limitsOf(const GraphState& state) {
    return {state.xMin, state.xMax, state.yMin, state.yMax};
}

inline PlotMapping mappingOf(const GraphState& state) {
    return {state.graphRect, heightOf(state.canvasRect), limitsOf(state), state.scaleX};
}

inline ViewTransform viewOf(const GraphState& state) {
    return {state.panX, state.panY, state.scaleX, state.scaleY, centreOf(state.canvasRect)};
}

/// A plot point, y upward, on the canvas.
inline Point onCanvas(const GraphState& state, const Point& plotPoint) {
    return viewOf(state).apply(mappingOf(state).flipped(plotPoint));
}

}  // namespace Meridax::VisualControls::Rotavue
