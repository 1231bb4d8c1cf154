#include "workbench/scene/shown_span.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

namespace {

/// Beyond the marks at both ends, so that rounding loses no turn, in s.
constexpr double Slack = 1e-9;

// As many whole samples as the milliseconds hold, the newest among them.
TimeSpan stretchByTime(const ShownSpan& span) {
    constexpr double PartOfSample = 1e-6;  // that rounding may cost
    const double seconds = span.milliseconds / 1000.0;
    if (!(span.sample > 0.0)) return {std::max(0.0, span.time - seconds), span.time};
    const double end = span.time + span.sample / 2.0;
    const double samples = std::floor(seconds / span.sample + PartOfSample);
    return {std::max(0.0, end - samples * span.sample), end};
}

}  // namespace

TimeSpan stretchOf(const ShownSpan& span, const ShaftTrack& track) {
    if (!span.byTurns) return stretchByTime(span);
    const auto& runs = track.runs();
    for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
        if (run->begin() > span.time) continue;
        const double end = std::floor(run->turnAt(std::min(span.time, run->end())));
        if (end < 1.0) continue;
        const double first = std::max(0.0, end - span.turns);
        return {run->timeOf(first) - Slack, run->timeOf(end) + Slack};
    }
    return {0.0, span.time};
}

}  // namespace Rotavue::Workbench
