#pragma once

#include "workbench/analysis/raw_channels.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/recording/recording.h"

#include <memory>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// A recording with what is found in it once and for all. It never changes, so that any thread may
/// read it; it lives as long as anybody holds it.
struct PlaneSource {
    /// Completes the clearance of a round bearing that is told by one number, and looks the probes
    /// and the keyphasor over. Takes as long as the recording is; made on a worker.
    explicit PlaneSource(Recording of, RecordingOptions with = {});

    double duration() const { return recording.duration(); }  ///< s

    /// The number of the sample nearest to a time in s after the first one, held inside.
    std::size_t sampleAt(double seconds) const;

    /// "Bearing 1", or the file's name without its ending where no point is given.
    std::string name() const;

    Recording recording;
    RecordingOptions options;  ///< what it was read with, beyond its machine file
    ShaftTrack track;
    std::vector<std::string> notes;  ///< what a person should know, one line each
};

/// A recording made ready for a control, so that the window's thread only has to move it into its
/// place: what is long about it has been done on the thread that called `preparePlane`.
struct PreparedPlane {
    std::shared_ptr<const PlaneSource> source;
    RawOrbit raw;  ///< a copy of the samples for the host
};

PreparedPlane preparePlane(Recording recording, RecordingOptions options = {});
PreparedPlane preparePlane(std::shared_ptr<const PlaneSource> source);

}  // namespace Rotavue::Workbench
