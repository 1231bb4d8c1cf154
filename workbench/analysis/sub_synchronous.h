#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/analysis/order_low_pass.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

struct SubSyncOptions {
    OrderBand band = {};               ///< what is below 1X
    std::optional<double> speed = {};  ///< rpm, above 0; for a recording without keyphasor only
};

/// The motion below 1X, with the mean position in it.
struct SubSyncOrbit {
    std::vector<double>
        x;  ///< one value for each sample of the recording, in the unit; NaN in gaps
    std::vector<double> y;
    std::string unit;                ///< empty: not given
    OrderBand band = {};             ///< as used
    std::vector<std::string> notes;  ///< where 1X was taken from, and what could not be filtered
};

/// Leaves what is below 1X, in both probes with one filter and without a shift of phase, at every
/// sample. The filter's edge follows the shaft: the signal is averaged over small steps of the
/// shaft's angle (up to 64 a turn, which also keeps high orders from folding down), filtered there
/// (order_low_pass.h), and read back at the samples (cubic_sampling.h). Gaps are bridged by
/// straight lines for the filter and are gaps in the result. So is what lies outside the runs of
/// the track, but for the turn begun before and the turn begun behind each run.
///
/// Without keyphasor 1X is at the speed given or else at the strongest line of the spectrum, over
/// the whole recording; a note says which.
///
/// Throws AnalysisError if the keyphasor is there and shows no run of four turns or more, if there
/// is none and neither a speed nor a line that stands out, if the recording is shorter than four
/// turns, or if there are fewer than four samples a turn; and ReadingCancelled.
SubSyncOrbit subSynchronousOrbit(const Recording& recording, const ShaftTrack& track,
                                 const SubSyncOptions& options = {},
                                 const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
