#include "workbench/bench/plane_source.h"

#include "workbench/analysis/signal_check.h"
#include "workbench/scene/bearing_facts.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Rotavue::Workbench {

namespace {

Recording completed(Recording recording) {
    completeClearance(recording.machine);
    return recording;
}

void append(std::vector<std::string>& notes, const std::vector<std::string>& more) {
    notes.insert(notes.end(), more.begin(), more.end());
}

}  // namespace

PlaneSource::PlaneSource(Recording of, RecordingOptions with)
    : recording(completed(std::move(of))),
      options(std::move(with)),
      track(recording),
      notes(recording.notes) {
    append(notes, checkProbes(recording));
    append(notes, track.notes());
}

std::size_t PlaneSource::sampleAt(double seconds) const {
    const double last = static_cast<double>(recording.sampleCount() - 1);
    return static_cast<std::size_t>(
        std::clamp(std::round(seconds * recording.sampleRate), 0.0, last));
}

std::string PlaneSource::name() const {
    const std::string& point = recording.machine.point;
    return point.empty() ? recording.file.stem().string() : point;
}

PreparedPlane preparePlane(Recording recording, RecordingOptions options) {
    return preparePlane(
        std::make_shared<const PlaneSource>(std::move(recording), std::move(options)));
}

PreparedPlane preparePlane(std::shared_ptr<const PlaneSource> source) {
    RawOrbit raw = rawOrbit(source->recording, {.name = source->name(), .color = 0});
    return {.source = std::move(source), .raw = std::move(raw)};
}

}  // namespace Rotavue::Workbench
