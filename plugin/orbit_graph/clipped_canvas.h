#pragma once

#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/orbit_graph/canvas_integer.h"
#include "plugin/orbit_graph/geometry.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// The canvas that a drawing operation was handed.
using CanvasRef = Host::Ref<Host::IHostCanvas>;

/// The guard through which the engine reaches the canvas, for the length of one drawing operation.
/// It drops a shape outside its range whole, without a word; it never cuts one. It holds a
/// reference to the canvas; a null one raises `HostError` 0x80004003.
class ClippedCanvas {
public:
    static constexpr double LowerBound = -32767.0;
    static constexpr double UpperBound = 32767.0;

    explicit ClippedCanvas(CanvasRef canvas) : canvas_(std::move(canvas)), target_(*canvas_) {}

    /// A dropped move leaves the pen where it was: the next line starts from there.
    void moveTo(const Point& point) const {
        if (admits(point)) target_.MoveTo(canvasInteger(point.x), canvasInteger(point.y));
    }

    void lineTo(const Point& point) const {
        if (admits(point)) target_.LineTo(canvasInteger(point.x), canvasInteger(point.y));
    }

    void ellipse(const Rectangle& box) const;
    void rectangle(const Rectangle& box) const;

    /// From the ray through `start` to the ray through `end`, both tested as points. The box goes
    /// out as left, bottom, right, top.
    void arc(const Rectangle& box, const Point& start, const Point& end) const;

    /// Takes its own copy of the text, before the test: where there is no memory for it, a box
    /// outside the range raises 0x8007000E as well.
    void textRect(const Rectangle& box, const std::wstring& text, std::uint32_t format) const;

    /// Leaves out the points outside the range and sends the others; without any, the host is not
    /// called.
    void polygon(const std::vector<Point>& points) const;

    static constexpr bool admits(const Point& point) {
        return isWithin(point.x, LowerBound, UpperBound) &&
               isWithin(point.y, LowerBound, UpperBound);
    }

    /// Tests left and right. Top counts only where left lies on a bound, and bottom only where
    /// right does. That is on purpose: a box within the range from left to right is sent, however
    /// high it is.
    static bool admits(const Rectangle& box);

private:
    CanvasRef canvas_;
    Host::IHostCanvas& target_;
};

}  // namespace Meridax::VisualControls::Rotavue
