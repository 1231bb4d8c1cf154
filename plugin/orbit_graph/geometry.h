#pragma once

#include <cmath>

namespace Meridax::VisualControls::Rotavue {

/// A place, or a pair of data values. Which of the coordinate systems it belongs to is told where
/// it is used.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// Four edges. Nothing keeps `left` below `right`: a plot in an area that is too small turns over,
/// and the box of a marker has its larger y first.
struct Rectangle {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    bool operator==(const Rectangle&) const = default;
};

struct Segment {
    Point start;
    Point end;

    bool operator==(const Segment&) const = default;
};

/// Holds no point: its edges stand the wrong way round, at the ends of the 32-bit range.
inline constexpr Rectangle EmptyRectangle{2147483647.0, 2147483647.0, -2147483648.0, -2147483648.0};

inline constexpr double Pi = 3.141592653589793;

constexpr double radians(double degrees) {
    return degrees * Pi / 180.0;
}

constexpr double widthOf(const Rectangle& box) {
    return box.right - box.left;
}

constexpr double heightOf(const Rectangle& box) {
    return box.bottom - box.top;
}

constexpr Point centreOf(const Rectangle& box) {
    return {widthOf(box) * 0.5 + box.left, heightOf(box) * 0.5 + box.top};
}

/// The box, moved so that its centre is `centre`.
constexpr Rectangle centredOn(const Rectangle& box, const Point& centre) {
    const Point old = centreOf(box);
    const double dx = centre.x - old.x;
    const double dy = centre.y - old.y;
    return {box.left + dx, box.top + dy, box.right + dx, box.bottom + dy};
}

/// The box of half width and half height `reach` round a centre.
constexpr Rectangle squareRound(const Point& centre, double reach) {
    return {centre.x - reach, centre.y - reach, centre.x + reach, centre.y + reach};
}

/// Bounds included; what is no number lies in nothing.
constexpr bool isWithin(double value, double lower, double upper) {
    return lower <= value && value <= upper;
}

constexpr bool holds(const Rectangle& box, const Point& point) {
    return isWithin(point.x, box.left, box.right) && isWithin(point.y, box.top, box.bottom);
}

/// Boxes that touch overlap.
constexpr bool overlaps(const Rectangle& box, const Rectangle& other) {
    return box.left <= other.right && other.left <= box.right && box.top <= other.bottom &&
           other.top <= box.bottom;
}

/// The lower bound is applied first, then the upper one: bounds in the wrong order, as a plot that
/// is turned over has them, give the upper one. What is no number stays as it is.
constexpr double limitedTo(double value, double lower, double upper) {
    const double raised = value < lower ? lower : value;
    return upper < raised ? upper : raised;
}

/// The point turned about a centre; on the canvas, where y runs down, a positive angle is
/// counter-clockwise.
inline Point turn(const Point& point, double angle, const Point& centre) {
    const double dx = point.x - centre.x;
    const double dy = point.y - centre.y;
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    return {dx * cosine + dy * sine + centre.x, dy * cosine - dx * sine + centre.y};
}

}  // namespace Meridax::VisualControls::Rotavue
