#pragma once

#include "cli/graph_scale.h"
#include "workbench/paint/picture_studio.h"
#include "workbench/recording/recording.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// How the limits of the plot are found.
enum class LimitChoice : std::uint8_t {
    Round,  ///< round numbers that hold what is shown
    Auto,   ///< the plug-in's own automatic scale
    Fixed,  ///< as given
};

/// What `render` was asked for, every value checked.
struct RenderOptions {
    std::vector<std::string> recordings;
    Workbench::RecordingOptions recording;
    Workbench::PictureOrder picture;
    std::int32_t scheme = 0;
    bool header = true;
    Background background = Background::Grid;
    std::optional<int> revolutions;
    std::optional<double> milliseconds;
    std::optional<double> at;  ///< s after the first sample; unset: the end
    bool clearance = false;
    std::optional<std::int32_t> ticks;
    LimitChoice limits = LimitChoice::Round;
    double limit = 0.0;  ///< of `LimitChoice::Fixed`
    std::vector<std::uint32_t> colors;
    std::optional<std::string> module;
    bool quiet = false;
};

}  // namespace Rotavue::Cli
