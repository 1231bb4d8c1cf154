#pragma once

#include <QPoint>

#include <span>
#include <vector>

namespace Rotavue::Workbench {

/// A line through whole pixels, without the staircase of the pixels: the fewest of its points, in
/// their order, such that each left-out one lies within 0.75 pixels of the line drawn instead. A
/// curve that was cut to whole pixels is up to half a pixel off at either end of a stretch, so a
/// smaller tolerance would keep steps that were never in the curve. The first and the last point
/// stay; points that repeat their predecessor go.
std::vector<QPoint> straightened(std::span<const QPoint> points);

}  // namespace Rotavue::Workbench
