#pragma once

#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>

namespace Meridax::VisualControls::Api {

/// Everything that a control needs for one frame. Colours are in the host's encoding.
struct DrawContext {
    Host::Ref<Host::IHostCanvas> canvas;  ///< may be null: what the host gave is passed on
    std::int32_t x = 0;                   ///< left edge of the control on the canvas, pixels
    std::int32_t y = 0;                   ///< top edge
    std::int32_t width = 0;               ///< right edge minus left edge
    std::int32_t height = 0;              ///< bottom edge minus top edge
    std::uint32_t backgroundColor = 0;
    std::uint32_t gridColor = 0;
    std::uint32_t textColor = 0;
    std::uint32_t axisColor = 0;
    std::uint32_t borderColor = 0;
};

}  // namespace Meridax::VisualControls::Api
