#pragma once

#include "cli/argument_values.h"
#include "cli/run_out_remover.h"
#include "host_kit/control/driven_control.h"
#include "workbench/paint/picture_studio.h"
#include "workbench/recording/recording.h"
#include "workbench/scene/curve_options.h"
#include "workbench/scene/curve_request.h"
#include "workbench/scene/graph_scale.h"

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
    Workbench::Background background = Workbench::Background::Grid;
    std::vector<Workbench::CurveRequest> show{Workbench::CurveRequest{}};
    std::optional<int> revolutions;
    std::optional<double> milliseconds;
    int usualRevolutions = 8;                        ///< where neither is asked for
    double usualMilliseconds = 100.0;                ///< likewise, without a keyphasor
    std::optional<double> at;                        ///< s after the first sample; unset: the end
    std::optional<double> speed;                     ///< rpm, of a recording without keyphasor
    std::optional<CompensationChoice> compensation;  ///< of run-out; unset: none is taken away
    Workbench::ShaftCenterChoice shaftCenter;
    std::optional<PicturePoint> pointer;  ///< in pixels of the size asked for
    bool clearance = false;
    std::optional<std::int32_t> ticks;
    LimitChoice limits = LimitChoice::Round;
    double limit = 0.0;                      ///< of `LimitChoice::Fixed`
    HostKit::DrivenControl::Settings setup;  ///< of a setup file; they go before all else
    std::vector<std::uint32_t> colors;
    std::optional<std::string> module;
    bool quiet = false;
};

}  // namespace Rotavue::Cli
