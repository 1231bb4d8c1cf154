#include "workbench/window/docks/lane_painter.h"

#include <QLineF>
#include <QPen>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

namespace {

/// Beyond this a painter's coordinates lose their meaning; no stroke that is seen reaches so far.
constexpr double Farthest = 1e6;

double bounded(double coordinate) {
    return std::clamp(coordinate, -Farthest, Farthest);
}

QPointF pointOf(const LaneMapping& mapping, const SampleTrace& trace, std::size_t index) {
    return {bounded(mapping.xOf(trace.timeOf(index))), bounded(mapping.yOf(trace.at(index)))};
}

void drawRun(QPainter& painter, const QPolygonF& run, double pixelsPerSample) {
    constexpr double RoomForPoints = 8.0;
    if (run.size() == 1 || pixelsPerSample >= RoomForPoints) {
        QPen points = painter.pen();
        points.setWidthF(3.0);
        points.setCapStyle(Qt::RoundCap);
        painter.save();
        painter.setPen(points);
        painter.drawPoints(run);
        painter.restore();
    }
    painter.drawPolyline(run);
}

void drawSamples(QPainter& painter, const LaneMapping& mapping, const SampleTrace& trace,
                 std::size_t first, std::size_t end) {
    const double pixelsPerSample =
        mapping.area.width() / std::max(1.0, static_cast<double>(end - first));
    painter.setRenderHint(QPainter::Antialiasing);
    QPolygonF run;
    for (std::size_t i = first; i < end; ++i) {
        if (!std::isnan(trace.at(i))) run.append(pointOf(mapping, trace, i));
        if (run.isEmpty() || (i + 1 < end && !std::isnan(trace.at(i)))) continue;
        drawRun(painter, run, pixelsPerSample);
        run.clear();
    }
}

/// Each column begins with the last sample of the one before it, so that the strokes hang together.
void drawColumns(QPainter& painter, const LaneMapping& mapping, const SampleTrace& trace,
                 double columnWidth) {
    const int columns = static_cast<int>(std::ceil(mapping.area.width() / columnWidth));
    painter.setRenderHint(QPainter::Antialiasing, false);
    QList<QLineF> strokes;
    strokes.reserve(columns);
    std::size_t first = trace.firstFrom(mapping.time.from);
    for (int i = 0; i < columns; ++i) {
        const double x = mapping.area.left() + i * columnWidth;
        const std::size_t end = trace.firstFrom(mapping.timeAt(x + columnWidth));
        if (const auto range = trace.rangeOf(first > 0 ? first - 1 : 0, end); range && end > first)
            strokes.append(
                {x, bounded(mapping.yOf(range->from)), x, bounded(mapping.yOf(range->to))});
        first = end;
    }
    painter.drawLines(strokes);
}

}  // namespace

void drawTrace(QPainter& painter, const LaneMapping& mapping, const SampleTrace& trace,
               const QColor& color) {
    constexpr double SamplesPerColumn = 3.0;
    const std::size_t first = trace.firstFrom(mapping.time.from);
    const std::size_t end = trace.firstFrom(mapping.time.to);
    const double columnWidth = 1.0 / painter.device()->devicePixelRatioF();
    const double columns = mapping.area.width() / columnWidth;
    painter.save();
    painter.setClipRect(mapping.area);
    painter.setPen(QPen(color, 1.2));
    if (static_cast<double>(end - first) < SamplesPerColumn * columns) {
        drawSamples(painter, mapping, trace, first > 0 ? first - 1 : 0,
                    std::min(end + 1, trace.count()));
    } else {
        drawColumns(painter, mapping, trace, columnWidth);
    }
    painter.restore();
}

void drawDots(QPainter& painter, const LaneMapping& mapping, const SampleTrace& trace,
              const std::vector<double>& times, const QColor& fill, const QColor& ring) {
    constexpr double LeastDistance = 9.0;
    constexpr double Radius = 3.0;
    const auto first = std::lower_bound(times.begin(), times.end(), mapping.time.from);
    const auto end = std::upper_bound(first, times.end(), mapping.time.to);
    if (static_cast<double>(end - first) * LeastDistance > mapping.area.width()) return;
    painter.save();
    painter.setClipRect(mapping.area);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ring, 1.5));
    painter.setBrush(fill);
    for (auto time = first; time != end; ++time) {
        const auto value = trace.valueAt(*time);
        if (!value) continue;
        const QPointF place{mapping.xOf(*time), bounded(mapping.yOf(*value))};
        painter.drawEllipse(place, Radius, Radius);
    }
    painter.restore();
}

}  // namespace Rotavue::Workbench
