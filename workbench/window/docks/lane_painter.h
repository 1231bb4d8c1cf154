#pragma once

#include "workbench/window/docks/plot_range.h"
#include "workbench/window/docks/sample_trace.h"

#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QRectF>

#include <vector>

namespace Rotavue::Workbench {

/// Where times and values lie in a rectangle of the screen.
struct LaneMapping {
    QRectF area;
    PlotRange time;
    PlotRange value;

    double xOf(double t) const {
        return area.left() + (t - time.from) / time.length() * area.width();
    }
    double yOf(double v) const {
        return area.bottom() - (v - value.from) / value.length() * area.height();
    }
    double timeAt(double x) const {
        return time.from + (x - area.left()) / area.width() * time.length();
    }
    double valueAt(double y) const {
        return value.from + (area.bottom() - y) / area.height() * value.length();
    }
};

/// Draws the trace: sample by sample where they have room, else one stroke from the smallest to the
/// largest value for each column of pixels. Gaps stay free.
void drawTrace(QPainter& painter, const LaneMapping& mapping, const SampleTrace& trace,
               const QColor& color);

/// A dot on the trace at each of these times, rising; none at all where they would run together.
void drawDots(QPainter& painter, const LaneMapping& mapping, const SampleTrace& trace,
              const std::vector<double>& times, const QColor& fill, const QColor& ring);

}  // namespace Rotavue::Workbench
