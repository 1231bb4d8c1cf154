#include "workbench/bench/plane_source.h"

#include "workbench/analysis/signal_check.h"
#include "workbench/scene/bearing_facts.h"

#include <algorithm>
#include <cmath>
#include <future>
#include <utility>

namespace Rotavue::Workbench {

namespace {

std::shared_ptr<const Recording> completed(Recording recording) {
    completeClearance(recording.machine);
    return std::make_shared<const Recording>(std::move(recording));
}

std::future<ShaftTrack> findTurns(std::shared_ptr<const Recording> recording) {
    return std::async(std::launch::async | std::launch::deferred,
                      [recording = std::move(recording)] { return ShaftTrack(*recording); });
}

std::string nameOf(const Recording& recording) {
    const std::string& point = recording.machine.point;
    return point.empty() ? recording.file.stem().string() : point;
}

std::vector<std::string> joined(std::vector<std::string> notes,
                                const std::vector<std::string>& more) {
    notes.insert(notes.end(), more.begin(), more.end());
    return notes;
}

}  // namespace

PlaneSource::PlaneSource(Recording of, RecordingOptions with)
    : PlaneSource(completed(std::move(of)), std::move(with)) {}

PlaneSource::PlaneSource(const std::shared_ptr<const Recording>& of, RecordingOptions with)
    : PlaneSource(of, std::move(with), findTurns(of)) {}

/// The turns are found meanwhile, and waited for at the end.
PlaneSource::PlaneSource(std::shared_ptr<const Recording> of, RecordingOptions with,
                         std::future<ShaftTrack> turns)
    : kept(std::move(of)),
      options(std::move(with)),
      raw(rawOrbit(kept, {.name = nameOf(recording), .color = 0})),
      decimals(axisDecimals(recording)),
      notes(joined(recording.notes, checkProbes(recording))),
      track(turns.get()) {
    notes = joined(std::move(notes), track.notes());
}

std::size_t PlaneSource::sampleAt(double seconds) const {
    const double last = static_cast<double>(recording.sampleCount() - 1);
    return static_cast<std::size_t>(
        std::clamp(std::round(seconds * recording.sampleRate), 0.0, last));
}

std::string PlaneSource::name() const {
    return nameOf(recording);
}

std::shared_ptr<const PlaneSource> preparePlane(Recording recording, RecordingOptions options) {
    return std::make_shared<const PlaneSource>(std::move(recording), std::move(options));
}

}  // namespace Rotavue::Workbench
