#pragma once

#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/time_span.h"

namespace Rotavue::Workbench {

/// What of the recordings is on show.
struct ShownSpan {
    bool byTurns = false;
    int turns = 0;              ///< asked for
    int turnsThere = 0;         ///< whole ones in the first recording
    double milliseconds = 0.0;  ///< where not by turns
    double time = 0.0;          ///< s after the first sample, of the newest one
    double sample = 0.0;        ///< s from one sample to the next
    double speed = 0.0;         ///< rpm, the mean over the span; 0: not known
};

/// By turns, a control draws nothing of its raw curves until a whole turn is there.
inline bool isAnyShown(const ShownSpan& span) {
    return !span.byTurns || span.turnsThere > 0;
}

/// The same as a stretch of one recording, for what is computed from it. By milliseconds it holds
/// the samples that a control draws, the newest among them, and begins and ends between two. By
/// turns it begins and ends with a passing of the keyphasor, as many turns apart as there are.
/// Where no turn is to be had it reaches back to the first sample.
TimeSpan stretchOf(const ShownSpan& span, const ShaftTrack& track);

}  // namespace Rotavue::Workbench
