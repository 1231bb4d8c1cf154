#pragma once

#include <QPointF>
#include <QRectF>

#include <cmath>
#include <numbers>

namespace Rotavue::Workbench {

/// A part of an ellipse in the painter's measure: sixteenths of a degree, counter-clockwise from
/// the right, along the circle that the ellipse is a squeezed picture of.
struct ArcAngles {
    int start = 0;
    int span = 0;  ///< above 0, up to the whole ellipse
};

/// Where the ray from the box's centre through a point meets the box's ellipse, in degrees.
inline double ellipseAngle(const QRectF& box, QPointF point) {
    const QPointF ray = point - box.center();
    return std::atan2(-ray.y() * box.width(), ray.x() * box.height()) * 180.0 / std::numbers::pi;
}

/// The arc that runs counter-clockwise on the screen from the ray through `from` to the ray through
/// `to`; the whole ellipse where both rays are the same.
inline ArcAngles arcAngles(const QRectF& box, QPointF from, QPointF to) {
    constexpr int WholeEllipse = 360 * 16;
    const int start = static_cast<int>(std::lround(ellipseAngle(box, from) * 16.0));
    const int end = static_cast<int>(std::lround(ellipseAngle(box, to) * 16.0));
    const int span = (end - start + WholeEllipse) % WholeEllipse;
    return {start, span > 0 ? span : WholeEllipse};
}

}  // namespace Rotavue::Workbench
