#pragma once

#include <string>

#include "examples/example.h"

namespace Rotavue::Examples {

// The text of a CSV recording: time, X, Y and keyphasor with their units in the header.
std::string csvText(const Example& example, const Samples& samples);

}  // namespace Rotavue::Examples
