#pragma once

#include "plugin/framework/host/host_object.h"

#include <cstdint>

namespace Meridax::Host {

/// [host implements] The fill style of the canvas. It comes from `IHostCanvas::GetBrush`.
class IHostBrush : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{C2336C94-EFD4-4EF9-A982-616F2311468F}");

    /// Sets the fill colour, in the host's encoding. [place 2]
    virtual void SetColor(std::uint32_t color) = 0;

    /// 0 fills solid, 1 does not fill and makes the ground of texts transparent. [place 4]
    virtual void SetStyle(std::int32_t style) = 0;

protected:
    ~IHostBrush() = default;
};

}  // namespace Meridax::Host
