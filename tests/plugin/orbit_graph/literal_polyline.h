#pragma once

#include "plugin/orbit_graph/clipped_canvas.h"
#include "plugin/orbit_graph/graph_state.h"

#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// Curves of the kinds Raw and Reference, drawn and searched sample by sample with every number
/// computed anew in the order in which it is told. It shares no arithmetic with the graph, which
/// takes what is the same for all samples once: the two must agree to the last bit.
NearestSample drawLiterally(const CanvasRef& canvas, const GraphState& state,
                            const std::vector<OrbitCurve>& curves);

}  // namespace Meridax::VisualControls::Rotavue
