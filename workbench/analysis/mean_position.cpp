#include "workbench/analysis/mean_position.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {
namespace {

// Rounding must not move a boundary that is meant to lie on a sample behind it.
constexpr double Slack = 1e-6;  // samples

std::size_t sampleAtOrBehind(const Recording& recording, double time) {
    const double place = std::ceil(time * recording.sampleRate - Slack);
    if (!(place > 0.0)) return 0;
    const bool inside = place < static_cast<double>(recording.sampleCount());
    return inside ? static_cast<std::size_t>(place) : recording.sampleCount();
}

}  // namespace

SampleRange samplesIn(const Recording& recording, const TimeSpan& span) {
    const std::size_t first = sampleAtOrBehind(recording, span.from);
    return {first, std::max(first, sampleAtOrBehind(recording, span.to))};
}

std::optional<ProbeValues> meanPosition(const Recording& recording, const TimeSpan& span) {
    const SampleRange range = samplesIn(recording, span);
    ProbeValues sum;
    std::size_t count = 0;
    for (std::size_t i = range.first; i < range.end; ++i) {
        if (!std::isfinite(recording.x[i] + recording.y[i])) continue;
        sum.x += recording.x[i];
        sum.y += recording.y[i];
        ++count;
    }
    if (count == 0 || 2 * count < range.count()) return std::nullopt;
    const auto divisor = static_cast<double>(count);
    return ProbeValues{sum.x / divisor, sum.y / divisor};
}

}  // namespace Rotavue::Workbench
