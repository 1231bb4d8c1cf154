#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "workbench/analysis/harmonics.h"
#include "workbench/analysis/machine_frame.h"
#include "workbench/analysis/order_ellipse.h"
#include "workbench/analysis/shaft_position.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// Numbers of the direct (unfiltered) signal over a stretch of time, in the recording's unit.
struct DirectValues {
    std::optional<ProbeValues> gap;  ///< mean of each probe; empty for an AC-coupled recording
    ProbeValues peakPeak;            ///< largest less smallest value of each probe
    /// The largest distance of the orbit from its mean point: how ISO 20816-1 judges relative shaft
    /// vibration by method C.
    double smax = 0.0;
};

/// One order as vectors and as an ellipse.
struct OrderSummary {
    OrderVectors vectors;
    OrderEllipse ellipse;
};

/// What a person asks of a recording first.
struct OrbitSummary {
    TimeSpan span = {};  ///< the stretch looked at, within the recording
    std::string unit;
    DirectValues direct;
    std::optional<ShaftPosition> position;  ///< empty where it cannot be told
    std::optional<double> speed;            ///< rpm, mean over the whole turns; empty: none known
    std::optional<double> speedFirst;       ///< rpm at the first of these turns
    std::optional<double> speedLast;        ///< rpm at the last
    std::vector<OrderSummary> orders;       ///< empty where none can be given
    std::vector<std::string> notes;         ///< why something is missing or doubtful, one line each
};

/// Sums a stretch of a recording up. What needs the shaft's angle is left out where it cannot be
/// had, with the reason as a note. The position needs the clearance, a recording that is not
/// AC-coupled, and `toCentre`, what `shiftToCentre` gives: unset where nobody has told how the
/// shaft rests.
///
/// Throws AnalysisError if the span holds no sample of both probes, or as `checkOrders`.
OrbitSummary summarize(const Recording& recording, const ShaftTrack& track,
                       std::span<const double> orders, const TimeSpan& span = {},
                       const std::optional<ProbeValues>& toCentre = {});

}  // namespace Rotavue::Workbench
