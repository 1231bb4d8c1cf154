#pragma once

#include "plugin/framework/color_scheme.h"
#include "workbench/paint/picture_studio.h"

namespace Rotavue::Workbench {

/// The numbers of the schemes that the program asks the plug-in for.
inline constexpr std::int32_t DarkNumber = 0;
inline constexpr std::int32_t LightNumber = 1;

/// The host's colours round a plot of that scheme.
inline PictureColors colorsOf(std::int32_t scheme) {
    const auto& colors = Meridax::VisualControls::Api::schemeOf(scheme);
    return {.background = colors.background,
            .text = colors.text,
            .quiet = colors.axis,
            .line = colors.grid};
}

}  // namespace Rotavue::Workbench
