#pragma once

#include "plugin/framework/host/host_object.h"

#include <cstdint>

namespace Meridax::Host {

/// [host implements] The text style of the canvas. It comes from `IHostCanvas::GetFont`.
class IHostFont : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{48D1B1FC-2C76-4C54-8E3C-AD9FF9C7A919}");

    /// Sets the text colour, in the host's encoding. [place 4]
    virtual void SetColor(std::uint32_t color) = 0;

    /// The height, which may be negative; its absolute value is a length in pixels. [place 7]
    virtual std::int32_t GetHeight() = 0;

    /// Sets the height. [place 8]
    virtual void SetHeight(std::int32_t height) = 0;

    /// Sets the style; called with 0 only, at the end of every frame. [place 10]
    virtual void SetStyle(std::int32_t style) = 0;

    /// Sets the angle of the text in tenths of a degree: 900 makes it run from bottom to top, 0
    /// restores it. [place 12]
    virtual void SetOrientation(std::int32_t tenths) = 0;

protected:
    ~IHostFont() = default;
};

}  // namespace Meridax::Host
