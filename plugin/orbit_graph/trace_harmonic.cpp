#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/phasor.h"
#include "plugin/orbit_graph/traces.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// The direction of a probe in data coordinates.
Point probeDirection(double degrees) {
    return {std::sin(radians(degrees)), std::cos(radians(degrees))};
}

/// The ellipse of one harmonic: the first phasor is the Y probe's, the second the X probe's.
class HarmonicEllipse {
public:
    HarmonicEllipse(const GraphState& state, const Point& first, const Point& second)
        : yPhasor_(first),
          xPhasor_(second),
          yProbe_(probeDirection(state.yAngle)),
          xProbe_(probeDirection(state.xAngle)) {}

    Point at(double angle) const {
        const double u = yPhasor_.at(angle);
        const double v = xPhasor_.at(angle);
        return {yProbe_.x * u + xProbe_.x * v, yProbe_.y * u + xProbe_.y * v};
    }

private:
    Phasor yPhasor_;
    Phasor xPhasor_;
    Point yProbe_;
    Point xProbe_;
};

void drawStep(TraceFrame& frame, const Point& value, bool isPhaseZero, Color color) {
    const MappedSample sample = frame.mapping.map(value);
    if (!sample.inside) {
        frame.clipped.moveTo(sample.position);
        return;
    }
    frame.search.offer(sample.value, sample.position);
    if (isPhaseZero) {
        fillEllipse(frame.canvas, sample.box, color, color);
        frame.clipped.moveTo(sample.position);
    }
    frame.clipped.lineTo(sample.position);
}

}  // namespace

void drawHarmonic(TraceFrame& frame, const OrbitCurve& curve) {
    frame.canvas->GetPen()->SetColor(curve.info.color);
    for (std::size_t i = 0; i + 1 < curve.points.size(); i += 2) {
        const HarmonicEllipse ellipse(frame.state, curve.points[i], curve.points[i + 1]);
        for (int degree = 0; degree < EllipseSteps; ++degree)
            drawStep(frame, ellipse.at(radians(degree)), degree == 0, curve.info.color);
    }
}

}  // namespace Meridax::VisualControls::Rotavue
