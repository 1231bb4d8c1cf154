#pragma once

#include <string>

namespace Rotavue::HostKit {

/// The difference between two logs for a reader: each run of lines that differ, "-" before what was
/// expected and "+" before what came, with the lines around it and the number of the first. Empty
/// for equal logs. Long runs are cut.
std::string logDifference(const std::string& expected, const std::string& got);

}  // namespace Rotavue::HostKit
