#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// A moment at which the shaft's angle passes zero.
struct TurnMark {
    double time = 0.0;      ///< s after the first sample
    std::int64_t turn = 0;  ///< whole turns since some first mark
};

/// The moments at which an angle passes zero, rising.
struct TurnTimes {
    std::vector<double> times;  ///< s after the first sample
    double netTurns = 0.0;  ///< from the first sample to the last; negative when the angle falls
};

/// Each moment is found by linear interpolation between the two samples around it. `angle` is in
/// degrees and falls back once a turn. A shaft that jitters about the mark, or turns back and
/// passes it again, is counted once: only an angle beyond all earlier ones makes a mark.
TurnTimes findTurnTimes(SampleView angle, double sampleRate);

/// Marks in unbroken runs, and what was mended to get them.
struct MendedMarks {
    std::vector<std::vector<TurnMark>> runs;  ///< each of two marks or more
    std::size_t droppedPulses = 0;            ///< too many: two within one turn
    std::size_t bridgedPulses = 0;            ///< too few: 2 to 8 turns without a mark between
};

/// Sorts out what a keyphasor gets wrong, judging each interval by the median of the eight
/// nearest ones (of three at least; with fewer, nothing is judged):
/// - below 0.6 of it, one of the two marks is a false one; that one goes whose absence leaves the
///   more even intervals;
/// - above 1.75 of it and within a quarter of 2, 3 .. 8 of it, marks are missing. No mark is
///   invented: the next one's `turn` counts on by that number;
/// - above 1.75 of it otherwise, the shaft stood or the pulses failed: a run ends there, and
/// another
///   begins.
/// An interval with neighbours on one side alone is never counted as several turns, since that is
/// also what the last turn before a standstill looks like.
MendedMarks mendMarks(std::vector<double> times);

}  // namespace Rotavue::Workbench
