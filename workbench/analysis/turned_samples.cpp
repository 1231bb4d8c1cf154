#include "workbench/analysis/turned_samples.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {
namespace {

// How many samples are taken between two looks whether it shall go on: some milliseconds.
constexpr std::size_t BetweenWords = 1U << 16U;

}  // namespace

double TurnedSamples::share(std::size_t index) const {
    const std::size_t before = index > 0 ? index - 1 : 0;
    const std::size_t behind = std::min(index + 1, turns.size() - 1);
    return 0.5 * (turns[behind] - turns[before]);
}

TurnedSamples turnedSamples(const Recording& recording, const ShaftRun& run, const TimeSpan& span,
                            const ReadingProgress& progress) {
    const double last = static_cast<double>(recording.sampleCount() - 1);
    const double from = std::clamp(std::floor(span.from * recording.sampleRate), 0.0, last);
    const double to = std::clamp(std::ceil(span.to * recording.sampleRate), from, last);
    const auto first = static_cast<std::size_t>(from);
    const auto count = static_cast<std::size_t>(to - from) + 1;
    TurnedSamples samples{first, {}};
    samples.turns.reserve(count);
    while (samples.count() < count) {
        const std::size_t most = std::min(BetweenWords, count - samples.count());
        const std::vector<double> turns =
            run.turnsAt(first + samples.count(), most, recording.sampleRate);
        samples.turns.insert(samples.turns.end(), turns.begin(), turns.end());
        progress.reach(static_cast<double>(samples.count()) / static_cast<double>(count));
    }
    return samples;
}

}  // namespace Rotavue::Workbench
