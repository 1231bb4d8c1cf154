#include "workbench/scene/shown_span.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

namespace {

/// Beyond the marks at both ends, so that rounding loses no turn, in s.
constexpr double Slack = 1e-9;

}  // namespace

TimeSpan stretchOf(const ShownSpan& span, const ShaftTrack& track) {
    if (!span.byTurns) return {std::max(0.0, span.time - span.milliseconds / 1000.0), span.time};
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
