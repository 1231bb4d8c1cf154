#pragma once

#include <optional>

#include "workbench/analysis/machine_frame.h"
#include "workbench/analysis/shaft_center.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// What is added to the displacements of a recording so that they count from the middle of the
/// clearance, for a shaft that lies at `rest` over the rest span or, without one, where they are 0.
/// Throws AnalysisError as `checkRest`.
ProbeValues shiftToCentre(const Recording& recording, RestPosition rest,
                          const std::optional<TimeSpan>& restSpan = {});

/// Where the shaft lies in its bearing, as bearings are judged.
struct ShaftPosition {
    /// The distance from the middle by what the clearance has in that direction, e/c: 0 in the
    /// middle, 1 at the wall, more where clearance or rest position are not those of the bearing.
    double eccentricity = 0.0;

    /// The attitude angle: degrees from straight down, where the load of a horizontal machine
    /// points, in the direction of rotation; above -180 to 180. Empty where the rotation is not
    /// given, and where e/c is below 0.005: the middle has no direction.
    std::optional<double> attitude;
};

/// The position of a shaft that is displaced so far from the middle of its clearance, toward each
/// probe. Empty unless both sides of the clearance are given and the probes look along two
/// directions.
std::optional<ShaftPosition> shaftPosition(const MachineFacts& machine,
                                           const ProbeValues& displacement);

}  // namespace Rotavue::Workbench
