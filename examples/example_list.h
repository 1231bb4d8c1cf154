#pragma once

#include <vector>

#include "examples/example.h"

namespace Rotavue::Examples {

// Every example recording; README.md describes each.
std::vector<Example> allExamples();

}  // namespace Rotavue::Examples
