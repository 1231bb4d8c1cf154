#include "plugin/orbit_graph/clipped_canvas.h"

#include "plugin/orbit_graph/text_call.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

/// The second number counts only where the first one lies on a bound. What is no number passes.
bool isPairAdmitted(double first, double second) {
    constexpr double Lower = ClippedCanvas::LowerBound;
    constexpr double Upper = ClippedCanvas::UpperBound;
    const bool below = first < Lower || (first == Lower && second < Lower);
    const bool above = first > Upper || (first == Upper && second > Upper);
    return !below && !above;
}

}  // namespace

bool ClippedCanvas::admits(const Rectangle& box) {
    return isPairAdmitted(box.left, box.top) && isPairAdmitted(box.right, box.bottom);
}

void ClippedCanvas::ellipse(const Rectangle& box) const {
    if (!admits(box)) return;
    target_.Ellipse(canvasInteger(box.left), canvasInteger(box.top), canvasInteger(box.right),
                    canvasInteger(box.bottom));
}

void ClippedCanvas::rectangle(const Rectangle& box) const {
    if (!admits(box)) return;
    target_.Rectangle(canvasInteger(box.left), canvasInteger(box.top), canvasInteger(box.right),
                      canvasInteger(box.bottom));
}

void ClippedCanvas::arc(const Rectangle& box, const Point& start, const Point& end) const {
    if (!admits(box) || !admits(start) || !admits(end)) return;
    target_.Arc(canvasInteger(box.left), canvasInteger(box.bottom), canvasInteger(box.right),
                canvasInteger(box.top), canvasInteger(start.x), canvasInteger(start.y),
                canvasInteger(end.x), canvasInteger(end.y));
}

void ClippedCanvas::textRect(const Rectangle& box, const std::wstring& text,
                             std::uint32_t format) const {
    passingText([&] {
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): on purpose, see above
        const std::wstring copy = text;
        if (!admits(box)) return;
        target_.TextRect(canvasInteger(box.left), canvasInteger(box.top), canvasInteger(box.right),
                         canvasInteger(box.bottom), copy, format);
    });
}

void ClippedCanvas::polygon(const std::vector<Point>& points) const {
    std::vector<std::int32_t> coordinates;
    std::int32_t count = 0;
    for (const Point& point : points) {
        if (!admits(point)) continue;
        coordinates.push_back(canvasInteger(point.x));
        coordinates.push_back(canvasInteger(point.y));
        ++count;
    }
    if (count > 0) target_.Polygon(coordinates, count);
}

}  // namespace Meridax::VisualControls::Rotavue
