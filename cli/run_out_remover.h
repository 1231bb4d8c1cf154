#pragma once

#include "workbench/analysis/compensation.h"
#include "workbench/analysis/slow_roll.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// Which run-out is taken away, and how.
struct CompensationChoice {
    Workbench::CompensationForm form = Workbench::CompensationForm::Vector;
    std::optional<std::string> slowRoll;  ///< a recording; unset: each one's own stretch
    Workbench::TimeSpan span;             ///< of slow roll
};

/// Takes run-out away from recordings as they are read.
class RunOutRemover {
public:
    /// Without a choice, recordings stay as they are. Otherwise reads the slow roll's recording,
    /// where there is one, with the same options as the others. Raises `RecordingError`, and
    /// `std::runtime_error` that names the file which gives no run-out.
    RunOutRemover(const std::optional<CompensationChoice>& choice,
                  const Workbench::RecordingOptions& options);

    /// Raises `std::runtime_error` that names the recording where that cannot be done.
    Workbench::Recording remove(Workbench::Recording recording);

    /// What a person should know of the run-outs taken so far, one line each with its file.
    const std::vector<std::string>& notes() const { return notes_; }

private:
    Workbench::SlowRoll taken(const Workbench::Recording& recording,
                              const Workbench::ShaftTrack& track);

    std::optional<CompensationChoice> choice_;
    std::optional<Workbench::SlowRoll> shared_;  ///< of the recording of its own
    std::vector<std::string> notes_;
};

}  // namespace Rotavue::Cli
