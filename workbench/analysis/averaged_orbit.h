#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

inline constexpr int MostRevolutions = 1024;
inline constexpr int MostPointsPerTurn = 4096;

struct AverageOptions {
    TimeSpan span = {};       ///< where the turns are taken from
    int revolutions = 1;      ///< turns that the orbit shows, 1 to MostRevolutions
    int averages = 0;         ///< stretches of so many turns in the mean; 0: all, 1: no averaging
    int pointsPerTurn = 256;  ///< a power of two, 8 to MostPointsPerTurn
    std::string purpose = "the averaged orbit";  ///< what errors begin with
};

/// An orbit by shaft angle. Point k stands at k * step() degrees behind the pulse. With a power of
/// two per turn the step is a binary fraction (360 / 256 = 1.40625), so every turn begins at an
/// angle that is exactly a multiple of 360, which is what sets a keyphasor dot.
struct AveragedOrbit {
    std::vector<double> x;  ///< displacement toward the X probe, in the unit, with its mean
    std::vector<double> y;
    std::string unit;  ///< empty: not given
    int revolutions = 1;
    int pointsPerTurn = 256;
    int averages = 0;    ///< stretches that went into the mean
    double speed = 0.0;  ///< rpm, the mean over the span
    TimeSpan span = {};  ///< what was used, from pulse to pulse

    double step() const { return 360.0 / pointsPerTurn; }  ///< degrees
};

/// The synchronous mean: the turns of the span, cut into stretches of `revolutions` turns that end
/// with the last whole turn, resampled by shaft angle and averaged point by point. What does not
/// repeat with the shaft averages out; what does is left. `averages` takes the newest stretches,
/// and a stretch with a gap of either probe is left out. Values between samples are on cubics, see
/// cubic_sampling.h.
///
/// Throws AnalysisError if an option is out of its range, if there is no whole turn (as
/// `ShaftTrack::wholeTurns`), if the span holds fewer turns than `revolutions`, or if there is no
/// stretch without a gap; and ReadingCancelled.
AveragedOrbit averageOrbit(const Recording& recording, const ShaftTrack& track,
                           const AverageOptions& options = {},
                           const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
