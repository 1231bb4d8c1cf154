#pragma once

#include "plugin/orbit_graph/geometry.h"
#include "plugin/orbit_graph/range.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace Meridax::VisualControls::Rotavue {

/// What a sample becomes on the canvas.
struct MappedSample {
    Point value;     ///< held within the limits
    bool inside;     ///< the sample itself lies within the limits, bounds included
    Rectangle box;   ///< of its marker; the larger y first
    Point position;  ///< the centre of `box`
};

/// From the unit square and from data values to the plot. What is the same for every sample is
/// taken once, here; the arithmetic per sample keeps its order, for another one moves pixels.
class PlotMapping {
public:
    static constexpr double MarkerRadius = 3.0;  ///< pixels, before the view's zoom in x

    PlotMapping(const Rectangle& graphRect, double canvasHeight, const Range& limits, double scaleX)
        : limits_(limits),
          spanX_(limits.xMax - limits.xMin),
          spanY_(limits.yMax - limits.yMin),
          hasArea_(!(limits.xMin >= limits.xMax || limits.yMin >= limits.yMax)),
          halfWidth_(widthOf(graphRect) * 0.5),
          halfHeight_(heightOf(graphRect) * 0.5),
          centre_(centreOf(graphRect)),
          radius_(MarkerRadius / scaleX),
          canvasHeight_(canvasHeight) {}

    const Range& limits() const { return limits_; }
    double halfWidth() const { return halfWidth_; }
    const Point& centre() const { return centre_; }

    /// A unit point in the plot. The half width serves both directions.
    Point plotPoint(double u, double v) const {
        return {u * halfWidth_ + centre_.x, v * halfWidth_ + centre_.y};
    }

    /// Between y upward and y downward. The top of the canvas area is not added: areas start at 0.
    double flipped(double y) const { return canvasHeight_ - y; }
    Point flipped(const Point& point) const { return {point.x, flipped(point.y)}; }

    /// The box of a data point's marker; all zero when an axis has no width.
    Rectangle dataToMarkerBox(const Point& value) const {
        return hasArea_ ? markerBox(value) : Rectangle{};
    }

    /// A sample outside the limits lies on the limit.
    MappedSample map(const Point& value) const {
        const Point held = limitedTo(value, limits_);
        const Rectangle box = dataToMarkerBox(held);
        return {held, holds(limits_, value), box, centreOf(box)};
    }

    /// The positions alone of a run of samples, the very numbers that `map` gives; `positions` has
    /// as many places as there are values.
    void mapPositions(std::span<const Point> values, Point* positions) const {
        if (!hasArea_) {
            std::fill_n(positions, values.size(), Point{});
            return;
        }
        for (std::size_t i = 0; i < values.size(); ++i)
            positions[i] = centreOf(markerBox(limitedTo(values[i], limits_)));
    }

private:
    /// The right side takes the half height: the plot is square.
    Rectangle markerBox(const Point& value) const {
        const double fractionX = (value.x - limits_.xMin) / spanX_;
        const double fractionY = (value.y - limits_.yMin) / spanY_;
        const double unitX = fractionX + fractionX - 1;
        const double unitY = fractionY + fractionY - 1;
        return {unitX * halfWidth_ - radius_ + centre_.x,
                flipped(unitY * halfWidth_ - radius_ + centre_.y),
                unitX * halfHeight_ + radius_ + centre_.x,
                flipped(unitY * halfHeight_ + radius_ + centre_.y)};
    }

    Range limits_;
    double spanX_;
    double spanY_;
    bool hasArea_;
    double halfWidth_;
    double halfHeight_;
    Point centre_;
    double radius_;
    double canvasHeight_;
};

}  // namespace Meridax::VisualControls::Rotavue
