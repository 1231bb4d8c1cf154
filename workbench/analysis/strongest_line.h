#pragma once

#include <optional>

#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// The frequency in Hz of the strongest line in the spectrum of both probes together; nothing if no
/// line is 100 times (20 dB) above the spectrum's median, or if the recording has fewer than 64
/// samples. Power spectra of Hann windows of at most 65536 samples that overlap by half are
/// averaged (P. D. Welch, IEEE Trans. Audio Electroacoust. 15, 1967); a parabola through the
/// logarithms of the highest three finds the place between the bins. The lowest bins, where the
/// mean and slow drifts lie, are passed over. Throws ReadingCancelled.
std::optional<double> strongestLine(const Recording& recording,
                                    const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
