#include "workbench/analysis/shaft_center.h"

#include <algorithm>
#include <cmath>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/mean_position.h"
#include "workbench/analysis/shaft_position.h"
#include "workbench/analysis/short_text.h"

namespace Rotavue::Workbench {
namespace {

constexpr double LongestInterval = 1e9;    // s
constexpr double LeastLastInterval = 0.5;  // of an interval
constexpr double LeastTurningPart = 0.5;   // of an interval

[[noreturn]] void refuse(const std::string& reason) {
    throw AnalysisError("the shaft centre " + reason);
}

void checkInterval(const Recording& recording, const ShaftCenterOptions& options) {
    const double least = 1.0 / recording.sampleRate;
    if (options.interval >= least && options.interval <= LongestInterval) return;
    refuse("takes intervals from one sample, " + shortText(least) + " s, to 1e9 s, not " +
           shortText(options.interval) + " s");
}

// The whole turns in an interval if they make up most of it; else the interval.
TimeSpan wholeTurnsIn(const ShaftTrack& track, const TimeSpan& interval) {
    const WholeTurns turns = track.mostTurns(interval);
    if (turns.count() == 0) return interval;
    const TimeSpan span = turns.span();
    return span.length() >= LeastTurningPart * interval.length() ? span : interval;
}

std::vector<TimeSpan> intervalsOf(const Recording& recording, const ShaftCenterOptions& options) {
    const double from = std::max(0.0, options.span.from);
    const double to = std::min(recording.duration(), options.span.to);
    std::vector<TimeSpan> intervals{{from, std::min(from + options.interval, to)}};
    for (double k = 1.0;; k += 1.0) {
        const double begin = from + k * options.interval;
        const TimeSpan interval{begin, std::min(begin + options.interval, to)};
        if (!(interval.length() >= LeastLastInterval * options.interval)) return intervals;
        intervals.push_back(interval);
    }
}

std::string leftOutNote(std::size_t count) {
    return "shaft centre: " + std::to_string(count) + (count == 1 ? " interval" : " intervals") +
           " left out because of gaps";
}

// Slow roll lifts the shaft little, so that this is told and not refused.
std::string turningNote(const TimeSpan& rest, const WholeTurns& turns) {
    return "shaft centre: the shaft turns at " + shortText(std::round(turns.speed())) +
           " rpm between " + shortText(rest.from) + " and " + shortText(rest.to) +
           " s, which is taken for its rest";
}

}  // namespace

void checkRest(const Recording& recording, RestPosition rest,
               const std::optional<TimeSpan>& restSpan) {
    shiftToCentre(recording, rest, restSpan);
}

ShaftCenterHistory shaftCenterHistory(const Recording& recording, const ShaftTrack& track,
                                      const ShaftCenterOptions& options,
                                      const ReadingProgress& progress) {
    const ProbeValues shift = shiftToCentre(recording, options.rest, options.restSpan);
    checkInterval(recording, options);
    const std::vector<TimeSpan> intervals = intervalsOf(recording, options);
    ShaftCenterHistory history{{}, recording.machine.unit, recording.startTime, {}};
    for (const TimeSpan& interval : intervals) {
        progress.reach(interval.from / recording.duration());
        const auto mean = meanPosition(recording, wholeTurnsIn(track, interval));
        if (!mean) continue;
        const double middle = 0.5 * (interval.from + interval.to);
        history.positions.push_back(
            {mean->x + shift.x, mean->y + shift.y, track.speedAt(middle), middle});
    }
    if (history.positions.empty()) refuse("finds no interval with samples free of gaps");
    const std::size_t left = intervals.size() - history.positions.size();
    if (left > 0) history.notes.push_back(leftOutNote(left));
    if (!options.restSpan) return history;
    const WholeTurns turns = track.mostTurns(*options.restSpan);
    if (turns.count() > 0) history.notes.push_back(turningNote(*options.restSpan, turns));
    return history;
}

}  // namespace Rotavue::Workbench
