#pragma once

#include "workbench/analysis/raw_channels.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/recording/recording.h"

#include <cstdint>
#include <future>
#include <memory>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

struct RunOut;

/// A recording with what is found in it once and for all. It never changes, so that any thread may
/// read it; it lives as long as anybody holds it.
struct PlaneSource {
    /// Completes the clearance of a round bearing that is told by one number, and looks the probes
    /// and the keyphasor over, on two threads. Takes as long as the recording is; made on a worker,
    /// so that the window's thread only puts it into its place.
    explicit PlaneSource(Recording of, RecordingOptions with = {});

    double duration() const { return recording.duration(); }  ///< s

    /// The number of the sample nearest to a time in s after the first one, held inside.
    std::size_t sampleAt(double seconds) const;

    /// "Bearing 1", or the file's name without its ending where no point is given.
    std::string name() const;

    std::shared_ptr<const Recording> kept;  ///< for who shares its samples
    const Recording& recording = *kept;
    RecordingOptions options;        ///< what it was read with, beyond its machine file
    RawOrbit raw;                    ///< what a host offers; the samples are the recording's
    std::int32_t decimals;           ///< digits behind the point of the graph's numbers
    std::vector<std::string> notes;  ///< what a person should know, one line each
    ShaftTrack track;
    std::shared_ptr<const RunOut> runOut;  ///< that is taken off (run_out.h); null: none

private:
    PlaneSource(const std::shared_ptr<const Recording>& of, RecordingOptions with);
    PlaneSource(std::shared_ptr<const Recording> of, RecordingOptions with,
                std::future<ShaftTrack> turns);
};

std::shared_ptr<const PlaneSource> preparePlane(Recording recording, RecordingOptions options = {});

}  // namespace Rotavue::Workbench
