#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Meridax::Host {

class IHostBrush;
class IHostFont;
class IHostPen;

/// [host implements] The drawing surface: integer pixels, y downward, and a state (pen, brush,
/// font, current position) that stays until somebody changes it. It comes as argument 0 of message
/// 42 and is valid for that call only.
class IHostCanvas : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{F54B3BB3-A3A5-461A-A524-F416F10825DE}");

    /// Draws a line with the pen from the current position to (x, y), which becomes the current
    /// position. [place 1]
    virtual void LineTo(std::int32_t x, std::int32_t y) = 0;

    /// Sets the current position without drawing. [place 2]
    virtual void MoveTo(std::int32_t x, std::int32_t y) = 0;

    /// Draws with the pen the ellipse inscribed in the box and fills it with the brush. [place 4]
    virtual void Ellipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) = 0;

    /// Draws the box with the pen and fills it with the brush. [place 5]
    virtual void Rectangle(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) = 0;

    /// Draws text with the font, its upper left corner at (x, y), turned by the font's orientation
    /// about that point. [place 6]
    virtual void TextOut(std::int32_t x, std::int32_t y, const std::wstring& text) = 0;

    /// The canvas's brush; a change to it takes effect at once. [place 7 | never null]
    virtual Ref<IHostBrush> GetBrush() = 0;

    /// The canvas's pen; a change to it takes effect at once. [place 8 | never null]
    virtual Ref<IHostPen> GetPen() = 0;

    /// The canvas's font; a change to it takes effect at once. [place 9 | never null]
    virtual Ref<IHostFont> GetFont() = 0;

    /// Draws with the pen the arc of the ellipse in the box (x1, y1, x2, y2), counter-clockwise on
    /// the screen from the ray through (x3, y3) to the ray through (x4, y4). The box comes as left,
    /// bottom, right, top. [place 10]
    virtual void Arc(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                     std::int32_t x3, std::int32_t y3, std::int32_t x4, std::int32_t y4) = 0;

    /// The width of the text in the current font, in pixels. [place 14]
    virtual std::int32_t TextWidth(const std::wstring& text) = 0;

    /// The height of the text in the current font, in pixels. [place 15]
    virtual std::int32_t TextHeight(const std::wstring& text) = 0;

    /// Draws the text inside the box. `format` is 0x100 for left aligned, 0x4 for centred
    /// horizontally, 0x14004 for one line centred both ways. [place 16]
    virtual void TextRect(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                          const std::wstring& text, std::uint32_t format) = 0;

    /// Draws with the pen and fills with the brush the closed polygon of `count` points, given as
    /// x0, y0, x1, y1 and so on. [place 17]
    virtual void Polygon(const std::vector<std::int32_t>& coordinates, std::int32_t count) = 0;

protected:
    ~IHostCanvas() = default;
};

}  // namespace Meridax::Host
