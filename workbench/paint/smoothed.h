#pragma once

#include <QPoint>
#include <QPointF>

#include <span>
#include <vector>

namespace Rotavue::Workbench {

/// A line through whole pixels without the steps of the pixels.
///
/// Whoever drew the line has cut its points to whole pixels, so each may stand anywhere in its own
/// pixel: it is moved there towards the middle of its neighbours, but never out of its pixel. A
/// point that stands off that middle by more than a pixel is a corner of the curve, not of the
/// pixels, and stays; so do the two ends. Points that repeat their predecessor go, and so do those
/// that lie within a tenth of a pixel of the line drawn without them.
std::vector<QPointF> smoothed(std::span<const QPoint> points);

}  // namespace Rotavue::Workbench
