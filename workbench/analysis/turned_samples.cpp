#include "workbench/analysis/turned_samples.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

double TurnedSamples::share(std::size_t index) const {
    const std::size_t before = index > 0 ? index - 1 : 0;
    const std::size_t behind = std::min(index + 1, turns.size() - 1);
    return 0.5 * (turns[behind] - turns[before]);
}

TurnedSamples turnedSamples(const Recording& recording, const ShaftRun& run, const TimeSpan& span) {
    const double last = static_cast<double>(recording.sampleCount() - 1);
    const double from = std::clamp(std::floor(span.from * recording.sampleRate), 0.0, last);
    const double to = std::clamp(std::ceil(span.to * recording.sampleRate), from, last);
    const auto first = static_cast<std::size_t>(from);
    const auto count = static_cast<std::size_t>(to - from) + 1;
    return {first, run.turnsAt(first, count, recording.sampleRate)};
}

}  // namespace Rotavue::Workbench
