#pragma once

#include "workbench/analysis/compensation.h"
#include "workbench/analysis/slow_roll.h"
#include "workbench/bench/plane_source.h"
#include "workbench/recording/reading_watch.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace Rotavue::Workbench {

/// Which run-out is taken off a recording, and how: enough to do it again.
struct RunOutSource {
    CompensationForm form = CompensationForm::Vector;
    TimeSpan span = {};                                  ///< of slow roll
    std::optional<std::filesystem::path> slowRoll = {};  ///< unset: the recording itself

    bool operator==(const RunOutSource&) const = default;
};

/// Run-out that is taken off. Whoever shows what is left has all that it takes to save it, to take
/// the same run-out off in the other form, and to let it back in.
struct RunOut {
    RunOutSource source;
    SlowRoll slowRoll;
    std::shared_ptr<const PlaneSource> original;  ///< the recording with it
};

/// Finds the run-out of a recording, in itself or in one of slow roll, which is read for it. Takes
/// as long as that; any thread may ask. Throws AnalysisError, RecordingError and ReadingCancelled.
SlowRoll findRunOut(const PlaneSource& original, const RunOutSource& source,
                    const ReadingWatch& watch = {});

/// What is left of a recording; it tells of the run-out as `PlaneSource::runOut`. Takes as long as
/// the recording is; any thread may ask. Throws AnalysisError unless the run-out is of its bearing,
/// `checkCompensable`, and ReadingCancelled.
std::shared_ptr<const PlaneSource> withoutRunOut(std::shared_ptr<const PlaneSource> original,
                                                 RunOutSource source, SlowRoll slowRoll,
                                                 const ReadingWatch& watch = {});

/// Finds the run-out and takes it off. Throws as both.
std::shared_ptr<const PlaneSource> withoutRunOut(std::shared_ptr<const PlaneSource> original,
                                                 const RunOutSource& source,
                                                 const ReadingWatch& watch = {});

}  // namespace Rotavue::Workbench
