#pragma once

#include <cstdint>
#include <filesystem>

#include "examples/example.h"

namespace Rotavue::Examples {

// Writes NAME.csv or NAME.wav, NAME.machine.json and NAME.truth.json into an existing folder and
// gives the recording's path. Throws std::runtime_error if a file cannot be written.
std::filesystem::path writeExample(const Example& example, std::uint64_t seed,
                                   const std::filesystem::path& folder);

}  // namespace Rotavue::Examples
