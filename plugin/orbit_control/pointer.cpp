#include "plugin/framework/host/leading_float.h"
#include "plugin/orbit_control/number_text.h"
#include "plugin/orbit_control/rotavue_visual_control.h"
#include "plugin/orbit_graph/number_format.h"

#include <algorithm>
#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::uint8_t LeftButton = 0;

Point pointAt(std::int32_t x, std::int32_t y) {
    return {static_cast<double>(x), static_cast<double>(y)};
}

}  // namespace

void RotavueVisualControl::onMouseEnter() {
    graph_.setPointerInside(true);
}

void RotavueVisualControl::onMouseLeave() {
    graph_.pointerLeft();
}

void RotavueVisualControl::onMouseDown(std::uint8_t button, Api::ShiftState /*shift*/,
                                       std::int32_t /*x*/, std::int32_t /*y*/) {
    leftButtonHeld_ = button == LeftButton;
}

void RotavueVisualControl::onMouseMove(Api::ShiftState /*shift*/, std::int32_t x, std::int32_t y) {
    const Point pointer = pointAt(x, y);
    graph_.setPointer(pointer);
    if (graph_.manualLimits() == 1) {
        graph_.hitTestLimitLabels(pointer);
        graph_.hitTestAxisStrips(pointer);
    }
    if (graph_.viewAdjustEnabled()) dragView(pointer);
    hostControl->invalidate();
}

void RotavueVisualControl::onMouseUp(std::uint8_t button, Api::ShiftState /*shift*/, std::int32_t x,
                                     std::int32_t y) {
    if (button == LeftButton) leftButtonHeld_ = false;
    if (graph_.manualLimits() == 0) return;
    const auto& labels = graph_.limitLabels();
    const auto hovered = std::ranges::find_if(labels, &AxisLimitLabel::hovered);
    if (hovered != labels.end()) {
        editLimit(*hovered, x, y);
    } else if (graph_.anyAxisStripHovered()) {
        graph_.setLimits(dataExtents_.range());
    }
}

// The label is a copy: while the editor is open the host may send messages that change it.
void RotavueVisualControl::editLimit(AxisLimitLabel label, std::int32_t x, std::int32_t y) {
    std::wstring text = formatValue(graph_.valueFormat(), label.value);
    if (!hostControl->editText(x, y, text)) return;
    graph_.setLimit(double{Host::leadingFloat(commasToPoints(text))}, label.index);
}

// The gestures below are complete, and nothing opens the gate in front of them.
void RotavueVisualControl::onMouseWheel(Api::ShiftState shift, std::int32_t /*x*/,
                                        std::int32_t /*y*/, bool direction) {
    if (!graph_.viewAdjustEnabled()) return;
    if (shift.flag2) {
        turnView(direction);
    } else {
        zoomView(direction);
    }
}

void RotavueVisualControl::dragView(const Point& pointer) {
    if (leftButtonHeld_ && std::hypot(lastPointer_.x, lastPointer_.y) > 0.0) {
        graph_.panBy((pointer.x - lastPointer_.x) / viewZoom_,
                     (pointer.y - lastPointer_.y) / viewZoom_);
    }
    lastPointer_ = pointer;
}

// A turn past the seam jumps to the other side of it; the excess is lost.
void RotavueVisualControl::turnView(bool direction) {
    const double step = graph_.rotationDirection() == 1 ? -rotationStep_ : rotationStep_;
    viewRotation_ += direction ? -step : step;
    if (viewRotation_ >= Pi) {
        viewRotation_ = -Pi;
    } else if (viewRotation_ <= -Pi) {
        viewRotation_ = Pi;
    }
    graph_.setRotation(viewRotation_);
}

void RotavueVisualControl::zoomView(bool direction) {
    const double tenth = viewZoom_ * 0.1;
    viewZoom_ = direction ? std::min(viewZoom_ + tenth, 10.0) : std::max(viewZoom_ - tenth, 0.1);
    graph_.setZoom(viewZoom_);
}

}  // namespace Meridax::VisualControls::Rotavue
