#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/orbit_graph.h"
#include "plugin/orbit_graph/primitives.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {

/// Round the origin of the data. Where it runs out of the plot it is lifted off the paper. The last
/// degree stays open.
void OrbitGraph::drawClearanceEllipse(const CanvasRef& canvas) const {
    const bool flat = state_.xMax - state_.xMin == 0 || state_.yMax - state_.yMin == 0;
    if (!state_.drawClearance || flat) return;
    canvas->GetPen()->SetColor(state_.clearanceColor);
    const ClippedCanvas clipped(canvas);
    const PlotMapping mapping = mappingOf(state_);
    for (int degree = 0; degree < 360; ++degree) {
        const double angle = radians(degree);
        const Point value{std::cos(angle) * state_.clearanceRadiusX,
                          std::sin(angle) * state_.clearanceRadiusY};
        const MappedSample sample = mapping.map(value);
        if (degree == 0 || !sample.inside) {
            clipped.moveTo(sample.position);
        } else {
            clipped.lineTo(sample.position);
        }
    }
}

}  // namespace Meridax::VisualControls::Rotavue
