#include "workbench/paint/canvas_tools.h"

#include "workbench/paint/canvas_bounds.h"
#include "workbench/paint/host_color.h"

namespace Rotavue::Workbench {

CanvasPen::CanvasPen(std::function<void()> beforeChange)
    : beforeChange_(std::move(beforeChange)),
      pen_(Qt::black, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin) {}

void CanvasPen::SetColor(std::uint32_t color) {
    const QColor wanted = fromHostColor(color);
    if (wanted == pen_.color()) return;
    beforeChange_();
    pen_.setColor(wanted);
}

void CanvasPen::SetWidth(std::int32_t width) {
    const int wanted = std::clamp(width, 1, WidestPen);
    if (wanted == pen_.width()) return;
    beforeChange_();
    pen_.setWidth(wanted);
}

void CanvasBrush::SetColor(std::uint32_t color) {
    color_ = fromHostColor(color);
}

void CanvasFont::SetColor(std::uint32_t color) {
    color_ = fromHostColor(color);
}

void CanvasFont::SetHeight(std::int32_t height) {
    if (height == height_) return;
    height_ = height;
    face_.reset();
}

const TextFace& CanvasFont::face() {
    if (!face_) face_.emplace(height_);
    return *face_;
}

}  // namespace Rotavue::Workbench
