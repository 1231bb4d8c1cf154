#pragma once

#include "plugin/framework/host/host_object.h"

#include <cstdint>

namespace Meridax::Host {

/// [host implements] The line style of the canvas. It comes from `IHostCanvas::GetPen`.
class IHostPen : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{DAFC614C-558E-4A51-A5C9-A4BA467429B7}");

    /// Sets the colour, in the host's encoding. [place 2]
    virtual void SetColor(std::uint32_t color) = 0;

    /// Sets the width in pixels; 1 and 2 are used. [place 4]
    virtual void SetWidth(std::int32_t width) = 0;

    /// Sets the line style; 0, solid, is the only one used. [place 6]
    virtual void SetStyle(std::int32_t style) = 0;

protected:
    ~IHostPen() = default;
};

}  // namespace Meridax::Host
