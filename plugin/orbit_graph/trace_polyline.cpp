#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/traces.h"

#include <algorithm>
#include <array>
#include <span>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// How many samples are mapped before they are drawn: enough for the compiler to map several at
/// once, few enough to stay in the nearest cache.
constexpr std::size_t RunLength = 64;

struct Run {
    std::span<const Point> values;
    std::array<Point, RunLength> positions;
};

void drawRun(TraceFrame& frame, const Run& run, bool isFirst) {
    const Range limits = frame.mapping.limits();
    for (std::size_t i = 0; i < run.values.size(); ++i) {
        const Point position = run.positions[i];
        const bool inside = holds(limits, run.values[i]);
        if (inside) frame.search.offer(run.values[i], position);
        if (inside && !isFirst) {
            frame.clipped.lineTo(position);
        } else {
            frame.clipped.moveTo(position);
        }
        isFirst = false;
    }
}

}  // namespace

// The one loop whose length is the recording's.
void drawPolyline(TraceFrame& frame, const OrbitCurve& curve) {
    frame.canvas->GetPen()->SetColor(curve.info.color);
    const std::span<const Point> points = curve.points;
    Run run;
    for (std::size_t start = 0; start < points.size(); start += RunLength) {
        run.values = points.subspan(start, std::min(RunLength, points.size() - start));
        frame.mapping.mapPositions(run.values, run.positions.data());
        drawRun(frame, run, start == 0);
    }
}

}  // namespace Meridax::VisualControls::Rotavue
