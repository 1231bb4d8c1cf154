#pragma once

#include "workbench/analysis/shaft_center.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording_options.h"

#include <cstdint>
#include <optional>

namespace Rotavue::Workbench {

/// What stands beside the positions of the shaft's centre.
enum class PositionLabels : std::uint8_t { Speed, Time };

/// How the history of the shaft's centre is made and told.
struct ShaftCenterChoice {
    std::optional<double> interval;  ///< s for each position; unset: what suits the recording
    RestPosition rest = RestPosition::Centre;
    std::optional<TimeSpan> restSpan;
    std::optional<PositionLabels> labels;  ///< unset: the speed where it is known
};

/// What the making of curves can be told beside their requests.
struct CurveOptions {
    RecordingOptions reference;   ///< how recordings are read that give a reference
    std::optional<double> speed;  ///< rpm, of a recording without keyphasor
    ShaftCenterChoice shaftCenter;
};

}  // namespace Rotavue::Workbench
