#pragma once

#include <filesystem>

#include "workbench/analysis/averaged_orbit.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// An averaged orbit that is kept to compare others with: slow roll, as new, before the repair. It
/// is one JSON object in a file:
///
///     {
///       "format": "rotavue reference orbit 1",
///       "unit": "um",            "machine": "Rotor kit",   "point": "Bearing 1",
///       "speed_rpm": 300,        "averages": 25,
///       "revolutions": 1,        "points_per_turn": 256,
///       "x_angle_deg": 45,       "y_angle_deg": 315,
///       "x": [12.5, ...],        "y": [-3.25, ...]
///     }
///
/// "x" and "y" hold revolutions * points_per_turn displacements toward each probe, in the unit,
/// from the keyphasor's pulse on.
struct ReferenceOrbit {
    AveragedOrbit orbit;  ///< its span is not kept
    std::string machine;
    std::string point;
    double xAngle = 90.0;  ///< degrees clockwise from the top
    double yAngle = 0.0;
};

/// The averaged orbit with what the recording says about its place.
ReferenceOrbit referenceFrom(const AveragedOrbit& orbit, const Recording& recording);

/// The mean of all turns of a span as such a reference. Throws AnalysisError as `averageOrbit`, and
/// ReadingCancelled.
ReferenceOrbit averagedReference(const Recording& recording, const ShaftTrack& track,
                                 const TimeSpan& span = {},
                                 const ReadingProgress& progress = ReadingProgress());

/// Writes the file beside its place and renames it there, so that a reader never meets half of one;
/// an older file goes. Throws AnalysisError, with nothing left behind, if it cannot be written.
void saveReference(const ReferenceOrbit& reference, const std::filesystem::path& file);

/// Throws AnalysisError that names the file if it cannot be read, is larger than 16 MiB, is no
/// JSON, or is no reference orbit.
ReferenceOrbit loadReference(const std::filesystem::path& file);

/// Throws AnalysisError unless the reference can be drawn together with the recording: probes at
/// the same angles, and the same unit where both give one.
void checkComparable(const ReferenceOrbit& reference, const Recording& recording);

}  // namespace Rotavue::Workbench
