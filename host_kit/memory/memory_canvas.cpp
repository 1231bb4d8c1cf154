#include "host_kit/memory/memory_canvas.h"

#include "host_kit/memory/utf8.h"

#include <utility>

namespace Rotavue::HostKit {

using Host::IHostCanvas;
using Host::Ref;

MemoryCanvas::MemoryCanvas(MemoryHost& host)
    : LastingObject(host), pen_(host), brush_(host), font_(host) {}

void MemoryCanvas::drawAlsoOn(Ref<IHostCanvas> other) {
    other_ = std::move(other);
    pen_.drawAlsoWith(other_ ? other_->GetPen() : nullptr);
    brush_.drawAlsoWith(other_ ? other_->GetBrush() : nullptr);
    font_.drawAlsoWith(other_ ? other_->GetFont() : nullptr);
}

template <class... Parameters, class... Arguments>
void MemoryCanvas::drawn(Operation operation, void (IHostCanvas::*part)(Parameters...),
                         const Arguments&... arguments) {
    call(
        operation,
        [&] {
            if (other_) ((*other_).*part)(arguments...);
        },
        arguments...);
}

void MemoryCanvas::LineTo(std::int32_t x, std::int32_t y) {
    drawn(operation("IHostCanvas.LineTo"), &IHostCanvas::LineTo, x, y);
}

void MemoryCanvas::MoveTo(std::int32_t x, std::int32_t y) {
    drawn(operation("IHostCanvas.MoveTo"), &IHostCanvas::MoveTo, x, y);
}

void MemoryCanvas::Ellipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    drawn(operation("IHostCanvas.Ellipse"), &IHostCanvas::Ellipse, x1, y1, x2, y2);
}

void MemoryCanvas::Rectangle(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    drawn(operation("IHostCanvas.Rectangle"), &IHostCanvas::Rectangle, x1, y1, x2, y2);
}

void MemoryCanvas::TextOut(std::int32_t x, std::int32_t y, const std::wstring& text) {
    drawn(operation("IHostCanvas.TextOut"), &IHostCanvas::TextOut, x, y, text);
}

Ref<Host::IHostBrush> MemoryCanvas::GetBrush() {
    return call(operation("IHostCanvas.GetBrush"),
                [&] { return Ref<Host::IHostBrush>::share(&brush_); });
}

Ref<Host::IHostPen> MemoryCanvas::GetPen() {
    return call(operation("IHostCanvas.GetPen"), [&] { return Ref<Host::IHostPen>::share(&pen_); });
}

Ref<Host::IHostFont> MemoryCanvas::GetFont() {
    return call(operation("IHostCanvas.GetFont"),
                [&] { return Ref<Host::IHostFont>::share(&font_); });
}

void MemoryCanvas::Arc(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                       std::int32_t x3, std::int32_t y3, std::int32_t x4, std::int32_t y4) {
    drawn(operation("IHostCanvas.Arc"), &IHostCanvas::Arc, x1, y1, x2, y2, x3, y3, x4, y4);
}

std::int32_t MemoryCanvas::TextWidth(const std::wstring& text) {
    return call(
        operation("IHostCanvas.TextWidth"),
        [&] {
            const auto count = static_cast<std::int64_t>(codePointCount(text));
            return static_cast<std::int32_t>(count * host_.description.canvas.charWidth);
        },
        text);
}

std::int32_t MemoryCanvas::TextHeight(const std::wstring& text) {
    return call(
        operation("IHostCanvas.TextHeight"), [&] { return host_.description.canvas.textHeight; },
        text);
}

void MemoryCanvas::TextRect(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                            const std::wstring& text, std::uint32_t format) {
    drawn(operation("IHostCanvas.TextRect"), &IHostCanvas::TextRect, x1, y1, x2, y2, text, format);
}

void MemoryCanvas::Polygon(const std::vector<std::int32_t>& coordinates, std::int32_t count) {
    drawn(operation("IHostCanvas.Polygon"), &IHostCanvas::Polygon, coordinates, count);
}

}  // namespace Rotavue::HostKit
