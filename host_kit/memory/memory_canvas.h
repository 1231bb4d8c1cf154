#pragma once

#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"

#include <optional>

namespace Rotavue::HostKit {

class MemoryPen final : public LastingObject<Host::IHostPen> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "pen"; }
    void drawAlsoWith(Host::Ref<Host::IHostPen> other);

    void SetColor(std::uint32_t color) override;
    void SetWidth(std::int32_t width) override;
    void SetStyle(std::int32_t style) override;

private:
    std::optional<std::uint32_t> color_;
    std::optional<std::int32_t> width_;
    std::optional<std::int32_t> style_;
    Host::Ref<Host::IHostPen> other_;
};

class MemoryBrush final : public LastingObject<Host::IHostBrush> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "brush"; }
    void drawAlsoWith(Host::Ref<Host::IHostBrush> other);

    void SetColor(std::uint32_t color) override;
    void SetStyle(std::int32_t style) override;

private:
    std::optional<std::uint32_t> color_;
    std::optional<std::int32_t> style_;
    Host::Ref<Host::IHostBrush> other_;
};

/// Its height is the `fontHeight` of the description.
class MemoryFont final : public LastingObject<Host::IHostFont> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "font"; }
    void drawAlsoWith(Host::Ref<Host::IHostFont> other);

    void SetColor(std::uint32_t color) override;
    std::int32_t GetHeight() override;
    void SetHeight(std::int32_t height) override;
    void SetStyle(std::int32_t style) override;
    void SetOrientation(std::int32_t tenths) override;

private:
    std::optional<std::uint32_t> color_;
    std::optional<std::int32_t> style_;
    std::optional<std::int32_t> orientation_;
    Host::Ref<Host::IHostFont> other_;
};

/// A canvas of fixed text metrics that paints nothing of its own. What is drawn on it can go to
/// another canvas as well.
class MemoryCanvas final : public LastingObject<Host::IHostCanvas> {
public:
    explicit MemoryCanvas(MemoryHost& host);

    std::string name() const override { return "canvas"; }
    void drawAlsoOn(Host::Ref<Host::IHostCanvas> other);

    void LineTo(std::int32_t x, std::int32_t y) override;
    void MoveTo(std::int32_t x, std::int32_t y) override;
    void Ellipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) override;
    void Rectangle(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) override;
    void TextOut(std::int32_t x, std::int32_t y, const std::wstring& text) override;
    Host::Ref<Host::IHostBrush> GetBrush() override;
    Host::Ref<Host::IHostPen> GetPen() override;
    Host::Ref<Host::IHostFont> GetFont() override;
    void Arc(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, std::int32_t x3,
             std::int32_t y3, std::int32_t x4, std::int32_t y4) override;
    std::int32_t TextWidth(const std::wstring& text) override;
    std::int32_t TextHeight(const std::wstring& text) override;
    void TextRect(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                  const std::wstring& text, std::uint32_t format) override;
    void Polygon(const std::vector<std::int32_t>& coordinates, std::int32_t count) override;

private:
    /// A drawing operation that the other canvas gets as well.
    template <class... Parameters, class... Arguments>
    void drawn(Operation operation, void (Host::IHostCanvas::*part)(Parameters...),
               const Arguments&... arguments);

    MemoryPen pen_;
    MemoryBrush brush_;
    MemoryFont font_;
    Host::Ref<Host::IHostCanvas> other_;
};

}  // namespace Rotavue::HostKit
