#pragma once

#include "plugin/module/windows/interfaces/drawing_operations.h"
#include "plugin/module/windows/proxies/proxy_object.h"

namespace Meridax::Host::Binary {

template <>
class Proxy<IHostCanvas> final : public ProxyObject<IHostCanvas> {
public:
    using ProxyObject::ProxyObject;

    void LineTo(std::int32_t x, std::int32_t y) override {
        return call<&IHostCanvas::LineTo>(x, y);
    }
    void MoveTo(std::int32_t x, std::int32_t y) override {
        return call<&IHostCanvas::MoveTo>(x, y);
    }
    void Ellipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) override {
        return call<&IHostCanvas::Ellipse>(x1, y1, x2, y2);
    }
    void Rectangle(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) override {
        return call<&IHostCanvas::Rectangle>(x1, y1, x2, y2);
    }
    void TextOut(std::int32_t x, std::int32_t y, const std::wstring& text) override {
        return call<&IHostCanvas::TextOut>(x, y, text);
    }
    Ref<IHostBrush> GetBrush() override { return call<&IHostCanvas::GetBrush>(); }
    Ref<IHostPen> GetPen() override { return call<&IHostCanvas::GetPen>(); }
    Ref<IHostFont> GetFont() override { return call<&IHostCanvas::GetFont>(); }
    void Arc(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, std::int32_t x3,
             std::int32_t y3, std::int32_t x4, std::int32_t y4) override {
        return call<&IHostCanvas::Arc>(x1, y1, x2, y2, x3, y3, x4, y4);
    }
    std::int32_t TextWidth(const std::wstring& text) override {
        return call<&IHostCanvas::TextWidth>(text);
    }
    std::int32_t TextHeight(const std::wstring& text) override {
        return call<&IHostCanvas::TextHeight>(text);
    }
    void TextRect(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                  const std::wstring& text, std::uint32_t format) override {
        return call<&IHostCanvas::TextRect>(x1, y1, x2, y2, text, format);
    }
    void Polygon(const std::vector<std::int32_t>& coordinates, std::int32_t count) override {
        return call<&IHostCanvas::Polygon>(coordinates, count);
    }
};

template <>
class Proxy<IHostPen> final : public ProxyObject<IHostPen> {
public:
    using ProxyObject::ProxyObject;

    void SetColor(std::uint32_t color) override { return call<&IHostPen::SetColor>(color); }
    void SetWidth(std::int32_t width) override { return call<&IHostPen::SetWidth>(width); }
    void SetStyle(std::int32_t style) override { return call<&IHostPen::SetStyle>(style); }
};

template <>
class Proxy<IHostBrush> final : public ProxyObject<IHostBrush> {
public:
    using ProxyObject::ProxyObject;

    void SetColor(std::uint32_t color) override { return call<&IHostBrush::SetColor>(color); }
    void SetStyle(std::int32_t style) override { return call<&IHostBrush::SetStyle>(style); }
};

template <>
class Proxy<IHostFont> final : public ProxyObject<IHostFont> {
public:
    using ProxyObject::ProxyObject;

    void SetColor(std::uint32_t color) override { return call<&IHostFont::SetColor>(color); }
    std::int32_t GetHeight() override { return call<&IHostFont::GetHeight>(); }
    void SetHeight(std::int32_t height) override { return call<&IHostFont::SetHeight>(height); }
    void SetStyle(std::int32_t style) override { return call<&IHostFont::SetStyle>(style); }
    void SetOrientation(std::int32_t tenths) override {
        return call<&IHostFont::SetOrientation>(tenths);
    }
};

}  // namespace Meridax::Host::Binary
