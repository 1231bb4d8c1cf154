#pragma once

#include <string_view>

#include "workbench/recording/sample_source.h"

namespace Rotavue::Workbench {

/// Takes one "key, value" line that stands above a table: "Machine Name", "Point Name", "Y-Axis
/// Unit" and the sample rate in its usual spellings, in Hz or kHz. Other keys, and rates that are
/// no number from 0.001 to 1e9, change nothing.
void takeHeaderKey(std::string_view key, std::string_view value, SourceHead& head);

}  // namespace Rotavue::Workbench
