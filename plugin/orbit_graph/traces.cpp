#include "plugin/orbit_graph/traces.h"

#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/orbit_graph.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

void drawCurve(TraceFrame& frame, const OrbitCurve& curve) {
    frame.search.beginCurve(curve);
    switch (curve.kind) {
        case OrbitKind::Raw:
        case OrbitKind::Reference:
            return drawPolyline(frame, curve);
        case OrbitKind::Average:
            return drawAverage(frame, curve);
        case OrbitKind::Harmonic:
            return drawHarmonic(frame, curve);
        case OrbitKind::ShaftCenter:
            return drawShaftCenter(frame, curve);
        case OrbitKind::SubSync:
            return;
    }
}

}  // namespace

void OrbitGraph::drawTraces(const CanvasRef& canvas, const std::vector<OrbitCurve>& curves) {
    const NearestSearch search(state_.nearest, state_.pointer);
    if (state_.xMax - state_.xMin == 0 || state_.yMax - state_.yMin == 0) return;
    state_.placedLabels.clear();
    TraceFrame frame{canvas, ClippedCanvas(canvas),          mappingOf(state_),
                     search, LabelRoom(state_.placedLabels), state_};
    for (const OrbitCurve& curve : curves)
        drawCurve(frame, curve);
}

}  // namespace Meridax::VisualControls::Rotavue
