#include "host_kit/memory/memory_canvas.h"

#include <utility>

namespace Rotavue::HostKit {

using Host::Ref;

void MemoryPen::drawAlsoWith(Ref<Host::IHostPen> other) {
    other_ = std::move(other);
    if (!other_) return;
    if (color_) other_->SetColor(*color_);
    if (width_) other_->SetWidth(*width_);
    if (style_) other_->SetStyle(*style_);
}

void MemoryPen::SetColor(std::uint32_t color) {
    const auto part = [&] {
        color_ = color;
        if (other_) other_->SetColor(color);
    };
    call(operation("IHostPen.SetColor"), part, color);
}

void MemoryPen::SetWidth(std::int32_t width) {
    const auto part = [&] {
        width_ = width;
        if (other_) other_->SetWidth(width);
    };
    call(operation("IHostPen.SetWidth"), part, width);
}

void MemoryPen::SetStyle(std::int32_t style) {
    const auto part = [&] {
        style_ = style;
        if (other_) other_->SetStyle(style);
    };
    call(operation("IHostPen.SetStyle"), part, style);
}

void MemoryBrush::drawAlsoWith(Ref<Host::IHostBrush> other) {
    other_ = std::move(other);
    if (!other_) return;
    if (color_) other_->SetColor(*color_);
    if (style_) other_->SetStyle(*style_);
}

void MemoryBrush::SetColor(std::uint32_t color) {
    const auto part = [&] {
        color_ = color;
        if (other_) other_->SetColor(color);
    };
    call(operation("IHostBrush.SetColor"), part, color);
}

void MemoryBrush::SetStyle(std::int32_t style) {
    const auto part = [&] {
        style_ = style;
        if (other_) other_->SetStyle(style);
    };
    call(operation("IHostBrush.SetStyle"), part, style);
}

void MemoryFont::drawAlsoWith(Ref<Host::IHostFont> other) {
    other_ = std::move(other);
    if (!other_) return;
    other_->SetHeight(host_.description.canvas.fontHeight);
    if (color_) other_->SetColor(*color_);
    if (style_) other_->SetStyle(*style_);
    if (orientation_) other_->SetOrientation(*orientation_);
}

void MemoryFont::SetColor(std::uint32_t color) {
    const auto part = [&] {
        color_ = color;
        if (other_) other_->SetColor(color);
    };
    call(operation("IHostFont.SetColor"), part, color);
}

std::int32_t MemoryFont::GetHeight() {
    return call(operation("IHostFont.GetHeight"),
                [&] { return host_.description.canvas.fontHeight; });
}

void MemoryFont::SetHeight(std::int32_t height) {
    const auto part = [&] {
        host_.description.canvas.fontHeight = height;
        if (other_) other_->SetHeight(height);
    };
    call(operation("IHostFont.SetHeight"), part, height);
}

void MemoryFont::SetStyle(std::int32_t style) {
    const auto part = [&] {
        style_ = style;
        if (other_) other_->SetStyle(style);
    };
    call(operation("IHostFont.SetStyle"), part, style);
}

void MemoryFont::SetOrientation(std::int32_t tenths) {
    const auto part = [&] {
        orientation_ = tenths;
        if (other_) other_->SetOrientation(tenths);
    };
    call(operation("IHostFont.SetOrientation"), part, tenths);
}

}  // namespace Rotavue::HostKit
