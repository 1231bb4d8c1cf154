#pragma once

#include "plugin/orbit_graph/graph_state.h"

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {

/// The smallest range that holds all points taken in so far; a new one is empty. What is no number
/// widens nothing.
class Extents {
public:
    /// Those of the one point 0, 0.
    static Extents ofOrigin() noexcept {
        Extents result;
        result.takeIn(0.0, 0.0);
        return result;
    }

    void takeIn(double x, double y) noexcept {
        if (x < range_.xMin) range_.xMin = x;
        if (x > range_.xMax) range_.xMax = x;
        if (y < range_.yMin) range_.yMin = y;
        if (y > range_.yMax) range_.yMax = y;
    }

    /// An empty one changes nothing.
    void takeIn(const Extents& other) noexcept {
        range_.xMin = std::min(range_.xMin, other.range_.xMin);
        range_.xMax = std::max(range_.xMax, other.range_.xMax);
        range_.yMin = std::min(range_.yMin, other.range_.yMin);
        range_.yMax = std::max(range_.yMax, other.range_.yMax);
    }

    /// Moves all four edges outward.
    void widen(double by) noexcept {
        range_.xMin -= by;
        range_.xMax += by;
        range_.yMin -= by;
        range_.yMax += by;
    }

    /// True while any of the four edges is still that of a new one.
    bool isUnset() const noexcept {
        constexpr Range New;
        return range_.xMin == New.xMin || range_.xMax == New.xMax || range_.yMin == New.yMin ||
               range_.yMax == New.yMax;
    }

    const Range& range() const noexcept { return range_; }

private:
    Range range_;
};

}  // namespace Meridax::VisualControls::Rotavue
