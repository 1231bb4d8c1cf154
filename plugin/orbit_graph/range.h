#pragma once

#include "plugin/orbit_graph/geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Meridax::VisualControls::Rotavue {

/// The extents of data, or the limits of the axes, in data units. A new one is empty: every value
/// that is folded in becomes its minimum and its maximum.
struct Range {
    double xMin = std::numeric_limits<double>::max();
    double xMax = std::numeric_limits<double>::lowest();
    double yMin = std::numeric_limits<double>::max();
    double yMax = std::numeric_limits<double>::lowest();

    bool operator==(const Range&) const = default;
};

/// Bounds included.
constexpr bool holds(const Range& range, const Point& value) {
    return isWithin(value.x, range.xMin, range.xMax) && isWithin(value.y, range.yMin, range.yMax);
}

constexpr Point limitedTo(const Point& value, const Range& range) {
    return {limitedTo(value.x, range.xMin, range.xMax), limitedTo(value.y, range.yMin, range.yMax)};
}

/// The largest magnitude in a range.
inline double reachOf(const Range& range) {
    return std::max({std::fabs(range.xMin), std::fabs(range.xMax), std::fabs(range.yMin),
                     std::fabs(range.yMax)});
}

/// From -reach to reach on both axes.
constexpr Range symmetricRange(double reach) {
    return {-reach, reach, -reach, reach};
}

}  // namespace Meridax::VisualControls::Rotavue
