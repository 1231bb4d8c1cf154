#pragma once

#include <cstddef>
#include <vector>

#include "workbench/analysis/shaft_track.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// Neighbouring samples of a recording and the turns of the shaft at each of them.
struct TurnedSamples {
    std::size_t first = 0;      ///< number of the first sample
    std::vector<double> turns;  ///< of a run, rising

    std::size_t count() const { return turns.size(); }

    /// The turns that a sample stands for: half the way to each neighbour.
    double share(std::size_t index) const;
};

/// The samples around a stretch of time, from the last one at or before it to the first one behind
/// it, as far as the recording goes. Two or more. Throws ReadingCancelled.
TurnedSamples turnedSamples(const Recording& recording, const ShaftRun& run, const TimeSpan& span,
                            const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
