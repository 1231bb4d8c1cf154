#include "cli/run_out_remover.h"

#include "workbench/analysis/analysis_error.h"

#include <stdexcept>
#include <utility>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

[[noreturn]] void refuse(const Recording& recording, const AnalysisError& error) {
    throw std::runtime_error(recording.file.string() + ": " + error.what());
}

}  // namespace

RunOutRemover::RunOutRemover(const std::optional<CompensationChoice>& choice,
                             const RecordingOptions& options)
    : choice_(choice) {
    if (!choice_ || !choice_->slowRoll) return;
    const Recording recording = readRecording(*choice_->slowRoll, options);
    shared_ = taken(recording, ShaftTrack(recording));
}

SlowRoll RunOutRemover::taken(const Recording& recording, const ShaftTrack& track) try {
    SlowRoll slowRoll = takeSlowRoll(recording, track, choice_->span);
    for (const std::string& note : slowRoll.notes)
        notes_.push_back(recording.file.string() + ": " + note);
    return slowRoll;
} catch (const AnalysisError& error) {
    refuse(recording, error);
}

Recording RunOutRemover::remove(Recording recording) {
    if (!choice_) return recording;
    const ShaftTrack track(recording);
    const SlowRoll slowRoll = shared_ ? *shared_ : taken(recording, track);
    try {
        checkCompensable(recording, slowRoll);
    } catch (const AnalysisError& error) {
        refuse(recording, error);
    }
    return compensated(std::move(recording), track, slowRoll, choice_->form);
}

}  // namespace Rotavue::Cli
