#include "workbench/window/run_out/run_out_keeper.h"

namespace Rotavue::Workbench {
namespace {

constexpr const char* VectorWord = "vector";
constexpr const char* WaveformWord = "waveform";

}  // namespace

CompensationKeeper runOutKeeper(RunOutActions& actions) {
    const auto taken = [&actions](const Plane& plane) -> std::optional<ViewCompensation> {
        const std::optional<RunOutSource> source = actions.runOutOf(plane);
        if (!source) return std::nullopt;
        const bool vector = source->form == CompensationForm::Vector;
        return ViewCompensation{vector ? VectorWord : WaveformWord, source->span, source->slowRoll};
    };
    const auto take = [&actions](Plane& plane, const ViewCompensation& saved) {
        const auto form =
            saved.form == VectorWord ? CompensationForm::Vector : CompensationForm::Waveform;
        actions.restore(plane, {form, saved.span, saved.slowRoll});
    };
    return {taken, take};
}

}  // namespace Rotavue::Workbench
