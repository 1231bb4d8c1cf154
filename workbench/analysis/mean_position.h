#pragma once

#include <cstddef>
#include <optional>

#include "workbench/analysis/machine_frame.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// The numbers of the samples in a span, from `first` to before `end`.
struct SampleRange {
    std::size_t first = 0;
    std::size_t end = 0;

    std::size_t count() const { return end - first; }
};

/// The samples at the times of the span, its end left out; none if it lies outside the recording.
SampleRange samplesIn(const Recording& recording, const TimeSpan& span);

/// The mean over the samples in which both probes have a value; nothing if these are fewer than
/// half of the samples in the span.
std::optional<ProbeValues> meanPosition(const Recording& recording, const TimeSpan& span);

}  // namespace Rotavue::Workbench
