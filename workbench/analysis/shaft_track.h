#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/analysis/monotone_cubic.h"
#include "workbench/analysis/time_span.h"
#include "workbench/analysis/turn_marks.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// A stretch of a recording in which the shaft turns without a stop, from one mark to another. The
/// angle between marks is a smooth, rising curve through all of them. Times are in s after the
/// recording's first sample, turns count from the first mark.
class ShaftRun {
public:
    /// Two marks or more, time and turn rising.
    explicit ShaftRun(std::vector<TurnMark> marks);

    double begin() const { return marks_.front().time; }
    double end() const { return marks_.back().time; }
    std::int64_t turnCount() const { return marks_.back().turn; }

    /// The turns at a time; whole at a mark. Outside the run the shaft goes on at the speed that it
    /// has at the run's end, which is meant for parts of a turn.
    double turnAt(double time) const { return turns_.at(time); }

    /// The turns at samples number `first`, `first` + 1, ..: `count` of them.
    std::vector<double> turnsAt(std::size_t first, std::size_t count, double sampleRate) const;

    /// The time of a number of turns between 0 and `turnCount`.
    double timeOf(double turn) const;

    /// The speed in rpm at a time: the slope there of the parabola that fits the seven marks around
    /// it best (least squares), so that the jitter of single pulses averages out and a constant
    /// acceleration is met exactly. With two marks it is the speed between them.
    double speedAt(double time) const;

private:
    std::vector<TurnMark> marks_;
    MonotoneCubic turns_;
};

/// Whole turns of one run, from turn number `first` to turn number `end`; good while the track that
/// gave it lives.
struct WholeTurns {
    const ShaftRun* run = nullptr;
    std::int64_t first = 0;
    std::int64_t end = 0;

    std::int64_t count() const { return end - first; }
    TimeSpan span() const;
    double speed() const;  ///< rpm, the mean
};

/// How the shaft turns during a recording, from its keyphasor.
class ShaftTrack {
public:
    /// Never fails: a recording without keyphasor, or with a shaft at rest, has no runs.
    explicit ShaftTrack(const Recording& recording);

    bool hasKeyphasor() const { return hasKeyphasor_; }
    const std::vector<ShaftRun>& runs() const { return runs_; }

    /// What was mended or is missing, one line each.
    const std::vector<std::string>& notes() const { return notes_; }

    /// The speed in rpm; 0 outside all runs, where no turn is seen.
    double speedAt(double time) const;

    /// The most whole turns that one run has within the span; none if there is no whole turn.
    WholeTurns mostTurns(const TimeSpan& span) const;

    /// The same, but one turn at least. Throws AnalysisError that begins with `purpose`, such as
    /// "the averaged orbit", if there is no keyphasor, if the shaft stands or turns backward all
    /// the time, or if the span holds no whole turn.
    WholeTurns wholeTurns(const TimeSpan& span, std::string_view purpose) const;

private:
    std::vector<ShaftRun>::const_iterator firstRunBehind(double time) const;
    [[noreturn]] void refuse(const TimeSpan& span, std::string_view purpose) const;
    void noteMended(const MendedMarks& marks);

    bool hasKeyphasor_ = false;
    double netTurns_ = 0.0;  ///< over the whole recording; negative when the angle falls
    std::vector<ShaftRun> runs_;
    std::vector<std::string> notes_;
};

}  // namespace Rotavue::Workbench
