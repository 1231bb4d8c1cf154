#include "workbench/bench/run_out.h"

#include <utility>

namespace Rotavue::Workbench {

namespace {

constexpr double PartOfReading = 0.8;
constexpr double PartOfFinding = 0.5;
constexpr double PartOfTakingOff = 0.6;  // the rest looks over what is left

/// For work that is the stretch from one part to the other of what is watched.
ReadingWatch stretchOf(const ReadingWatch& watch, double from, double to) {
    if (!watch) return {};
    return [&watch, from, to](double part) { return watch(from + part * (to - from)); };
}

SlowRoll take(const Recording& recording, const ShaftTrack& track, const TimeSpan& span,
              const ReadingProgress& progress) {
    constexpr int PointsPerTurn = 256;
    return takeSlowRoll(recording, track, span, PointsPerTurn, progress);
}

}  // namespace

SlowRoll findRunOut(const PlaneSource& original, const RunOutSource& source,
                    const ReadingWatch& watch) {
    const ReadingProgress progress(watch);
    if (!source.slowRoll) return take(original.recording, original.track, source.span, progress);
    const Recording recording =
        readRecording(*source.slowRoll, original.options, stretchOf(watch, 0.0, PartOfReading));
    return take(recording, ShaftTrack(recording), source.span,
                progress.between(PartOfReading, 1.0));
}

std::shared_ptr<const PlaneSource> withoutRunOut(std::shared_ptr<const PlaneSource> original,
                                                 RunOutSource source, SlowRoll slowRoll,
                                                 const ReadingWatch& watch) {
    const ReadingProgress progress(watch);
    Recording recording = compensated(original->recording, original->track, slowRoll, source.form,
                                      progress.between(0.0, PartOfTakingOff));
    recording.notes.insert(recording.notes.end(), slowRoll.notes.begin(), slowRoll.notes.end());
    auto left = std::make_shared<PlaneSource>(std::move(recording), original->options);
    left->runOut = std::make_shared<const RunOut>(
        RunOut{std::move(source), std::move(slowRoll), std::move(original)});
    progress.reach(1.0);
    return left;
}

std::shared_ptr<const PlaneSource> withoutRunOut(std::shared_ptr<const PlaneSource> original,
                                                 const RunOutSource& source,
                                                 const ReadingWatch& watch) {
    SlowRoll slowRoll = findRunOut(*original, source, stretchOf(watch, 0.0, PartOfFinding));
    return withoutRunOut(std::move(original), source, std::move(slowRoll),
                         stretchOf(watch, PartOfFinding, 1.0));
}

}  // namespace Rotavue::Workbench
