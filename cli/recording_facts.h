#pragma once

#include "workbench/recording/recording.h"

#include <string>

namespace Rotavue::Cli {

/// What is in a recording, for a person: a line each.
std::string factsAsText(const Workbench::Recording& recording);

/// The same as one JSON object, for a program. Members whose fact is not known are null.
std::string factsAsJson(const Workbench::Recording& recording);

}  // namespace Rotavue::Cli
