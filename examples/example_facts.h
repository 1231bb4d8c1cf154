#pragma once

#include <string>

#include "examples/example.h"

namespace Rotavue::Examples {

// The machine file of an example, as whoever recorded it would write it.
std::string machineText(const Example& example);

// What is known of an example beyond its samples, as JSON; README.md describes the members.
std::string truthText(const Example& example);

}  // namespace Rotavue::Examples
