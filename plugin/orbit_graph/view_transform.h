#pragma once

#include "plugin/orbit_graph/geometry.h"

namespace Meridax::VisualControls::Rotavue {

/// Pan, then zoom about the centre of the canvas. Frame, labels, titles and badges go through it;
/// traces, clearance and scale strips do not.
struct ViewTransform {
    double panX = 0;
    double panY = 0;
    double scaleX = 1.0;
    double scaleY = 1.0;
    Point centre;

    constexpr Point apply(const Point& point) const {
        return {(point.x + panX - centre.x) * scaleX + centre.x,
                (point.y + panY - centre.y) * scaleY + centre.y};
    }

    constexpr Segment apply(const Segment& segment) const {
        return {apply(segment.start), apply(segment.end)};
    }

    constexpr Rectangle apply(const Rectangle& box) const {
        const Point first = apply(Point{box.left, box.top});
        const Point second = apply(Point{box.right, box.bottom});
        return {first.x, first.y, second.x, second.y};
    }
};

}  // namespace Meridax::VisualControls::Rotavue
