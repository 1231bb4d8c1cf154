#include "workbench/bench/run_out.h"

#include <utility>

namespace Rotavue::Workbench {

SlowRoll findRunOut(const PlaneSource& original, const RunOutSource& source,
                    const ReadingWatch& watch) {
    if (!source.slowRoll) return takeSlowRoll(original.recording, original.track, source.span);
    const Recording recording = readRecording(*source.slowRoll, original.options, watch);
    return takeSlowRoll(recording, ShaftTrack(recording), source.span);
}

std::shared_ptr<const PlaneSource> withoutRunOut(std::shared_ptr<const PlaneSource> original,
                                                 RunOutSource source, SlowRoll slowRoll) {
    Recording recording = compensated(original->recording, original->track, slowRoll, source.form);
    recording.notes.insert(recording.notes.end(), slowRoll.notes.begin(), slowRoll.notes.end());
    auto left = std::make_shared<PlaneSource>(std::move(recording), original->options);
    left->runOut = std::make_shared<const RunOut>(
        RunOut{std::move(source), std::move(slowRoll), std::move(original)});
    return left;
}

}  // namespace Rotavue::Workbench
