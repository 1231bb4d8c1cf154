#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "workbench/analysis/field_vector.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// Above this speed in rpm a shaft is hardly ever in slow roll: what its probes report holds motion
/// of its own.
inline constexpr double FastestSlowRoll = 1000.0;

/// What two probes report of a shaft that turns so slowly that it hardly moves: its run-out, the
/// unevenness of the surface (mechanical) and of the material (electrical). It belongs to the
/// shaft's angle, so it comes back at every speed, on top of the motion. Both forms leave the mean
/// out: run-out has none that could be told from the shaft's position.
struct SlowRoll {
    OrderVectors first{1.0, {}, {}};   ///< 1X of each probe, peak, in the unit
    OrderVectors second{2.0, {}, {}};  ///< 2X likewise
    std::vector<double> x;  ///< by the shaft's angle: value k at k * 360 / x.size() degrees
    std::vector<double> y;  ///< as many, a power of two

    std::filesystem::path file;  ///< of the recording that it is taken from; empty: not known
    bool hasMark = true;         ///< the angle counts from a mark on the shaft
    std::string unit;            ///< empty: not given
    std::string point;           ///< of the bearing; empty: not given
    double xAngle = 90.0;        ///< place of the X probe, degrees clockwise from the top
    double yAngle = 0.0;         ///< place of the Y probe
    double tachoAngle = 0.0;     ///< place of the keyphasor probe, which the angle counts from
    std::optional<Rotation> rotation;  ///< empty: not given
    double speed = 0.0;                ///< rpm, the mean over the turns
    int turns = 0;                     ///< of which the waveform is the mean
    std::vector<std::string> notes;    ///< what makes it doubtful, one line each
};

/// Takes the run-out from the whole turns of a stretch of slow roll. `pointsPerTurn` is a power of
/// two (averaged_orbit.h); 256 or 512 tell a scratch of a few degrees.
///
/// A stretch at more than `FastestSlowRoll` and one from an AC-coupled recording are taken, with a
/// note. Throws AnalysisError that begins with "the run-out" if there is no keyphasor, if the span
/// holds no whole turn, if there are gaps in all of them, or fewer than five samples a turn; and
/// ReadingCancelled.
SlowRoll takeSlowRoll(const Recording& recording, const ShaftTrack& track,
                      const TimeSpan& span = {}, int pointsPerTurn = 256,
                      const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
