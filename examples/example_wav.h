#pragma once

#include <filesystem>

#include "examples/example.h"

namespace Rotavue::Examples {

// The drivers in front of a WAV recorder: volts at rest, volts per um nearer, volts of full scale.
inline constexpr double GapVolts = -5.0;
inline constexpr double VoltsPerMicrometre = 0.00787;
inline constexpr double FullScaleVolts = 10.0;

// Writes X, Y and keyphasor as the three channels of a WAV file of 16 bits, in volts over full
// scale. Throws std::runtime_error if the file cannot be written.
void writeWav(const Example& example, const Samples& samples, const std::filesystem::path& file);

}  // namespace Rotavue::Examples
