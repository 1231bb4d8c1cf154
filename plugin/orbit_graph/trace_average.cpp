#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/traces.h"

#include <cmath>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// Phases beyond it are the gap before the keyphasor.
constexpr double LastPhase = 340.0;

/// Also every negative phase begins a revolution.
bool beginsRevolution(double phase) {
    return phase < std::numeric_limits<double>::epsilon();
}

void drawInside(TraceFrame& frame, const MappedSample& sample, double phase, Color color) {
    if (phase <= LastPhase) frame.search.offer(sample.value, sample.position);
    if (beginsRevolution(phase)) {
        fillEllipse(frame.canvas, sample.box, color, color);
        frame.clipped.moveTo(sample.position);
    }
    if (phase <= LastPhase) frame.clipped.lineTo(sample.position);
}

}  // namespace

void drawAverage(TraceFrame& frame, const OrbitCurve& curve) {
    frame.canvas->GetPen()->SetColor(curve.info.color);
    for (const CurveSample& point : curve.samples) {
        const MappedSample sample = frame.mapping.map({point.x, point.y});
        if (sample.inside) {
            drawInside(frame, sample, std::fmod(point.z, 360.0), curve.info.color);
        } else {
            frame.clipped.moveTo(sample.position);
        }
    }
}

}  // namespace Meridax::VisualControls::Rotavue
