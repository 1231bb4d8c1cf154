#pragma once

#include "plugin/orbit_graph/graph_state.h"
#include "plugin/orbit_graph/label_room.h"
#include "plugin/orbit_graph/nearest_search.h"
#include "plugin/orbit_graph/plot_mapping.h"
#include "plugin/orbit_graph/primitives.h"

namespace Meridax::VisualControls::Rotavue {

/// What the curves of one frame share while they are drawn.
struct TraceFrame {
    const CanvasRef& canvas;
    ClippedCanvas clipped;
    PlotMapping mapping;
    NearestSearch search;
    LabelRoom labels;
    GraphState& state;
};

// One drawing for each kind. A sample outside the limits lies on the limit and is only moved to, so
// that a line resumes from there.

/// Raw, SubSync, Reference.
void drawPolyline(TraceFrame& frame, const OrbitCurve& curve);

/// Average: cut between 340 and 360 degrees of each revolution, with a dot where the next begins.
void drawAverage(TraceFrame& frame, const OrbitCurve& curve);

/// Harmonic: for each pair of phasors, 340 degrees of its ellipse and a dot at phase zero.
void drawHarmonic(TraceFrame& frame, const OrbitCurve& curve);

/// ShaftCenter: dots from the oldest to the newest, which is white, and their third values.
void drawShaftCenter(TraceFrame& frame, const OrbitCurve& curve);

}  // namespace Meridax::VisualControls::Rotavue
