#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/slow_roll.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// What is taken away of the run-out.
enum class CompensationForm : std::uint8_t {
    Vector,   ///< 1X and 2X; the rest of the run-out stays
    Waveform  ///< all of it, point by point by the shaft's angle
};

/// Throws AnalysisError unless the slow roll is of the recording's own bearing as far as both tell:
/// probes and keyphasor at the same places, and the same unit, rotation and point where both give
/// one; or if the recording has no keyphasor; or if the two are different recordings and either
/// one's angle counts from no mark on the shaft.
void checkCompensable(const Recording& recording, const SlowRoll& slowRoll);

/// The recording without the run-out: each sample less what the slow roll says at the shaft's angle
/// there. That is the angle of the track while the shaft turns, and the recording's own before,
/// between and behind its runs. The mean position stays, gaps stay gaps, and nothing but x and y
/// changes; `track` is that of the recording and goes on to hold for the result.
///
/// Throws AnalysisError as `checkCompensable`, and ReadingCancelled.
Recording compensated(Recording recording, const ShaftTrack& track, const SlowRoll& slowRoll,
                      CompensationForm form, const ReadingProgress& progress = ReadingProgress());

/// "1X, 2X vector", "waveform".
std::string_view toText(CompensationForm form);

/// How a picture says so: "run-out compensated: waveform".
std::string compensationText(CompensationForm form);

}  // namespace Rotavue::Workbench
