#pragma once

#include "cli/argument_values.h"
#include "cli/curve_request.h"
#include "cli/driven_control.h"
#include "cli/graph_scale.h"
#include "cli/run_out_remover.h"
#include "workbench/analysis/shaft_center.h"
#include "workbench/analysis/time_span.h"
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

/// What stands beside the positions of the shaft's centre.
enum class PositionLabels : std::uint8_t { Speed, Time };

/// How the history of the shaft's centre is made and told.
struct ShaftCenterChoice {
    std::optional<double> interval;  ///< s for each position; unset: what suits the recording
    Workbench::RestPosition rest = Workbench::RestPosition::Centre;
    std::optional<Workbench::TimeSpan> restSpan;
    std::optional<PositionLabels> labels;  ///< unset: the speed where it is known
};

/// What `render` was asked for, every value checked.
struct RenderOptions {
    std::vector<std::string> recordings;
    Workbench::RecordingOptions recording;
    Workbench::PictureOrder picture;
    std::int32_t scheme = 0;
    bool header = true;
    Background background = Background::Grid;
    std::vector<CurveRequest> show{CurveRequest{}};
    std::optional<int> revolutions;
    std::optional<double> milliseconds;
    int usualRevolutions = 8;                        ///< where neither is asked for
    double usualMilliseconds = 100.0;                ///< likewise, without a keyphasor
    std::optional<double> at;                        ///< s after the first sample; unset: the end
    std::optional<double> speed;                     ///< rpm, of a recording without keyphasor
    std::optional<CompensationChoice> compensation;  ///< of run-out; unset: none is taken away
    ShaftCenterChoice shaftCenter;
    std::optional<PicturePoint> pointer;  ///< in pixels of the size asked for
    bool clearance = false;
    std::optional<std::int32_t> ticks;
    LimitChoice limits = LimitChoice::Round;
    double limit = 0.0;             ///< of `LimitChoice::Fixed`
    DrivenControl::Settings setup;  ///< of a setup file; they go before all else
    std::vector<std::uint32_t> colors;
    std::optional<std::string> module;
    bool quiet = false;
};

}  // namespace Rotavue::Cli
