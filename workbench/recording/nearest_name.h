#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Rotavue::Workbench {

/// The name that takes the fewest insertions, deletions and replacements of one character to become
/// `wanted`, small and capital letters counting as equal; the first of several. Empty without
/// names.
std::string nearestName(std::string_view wanted, std::span<const std::string> names);

/// The names as a list for a message, "t, x and y", at most ten of them.
std::string listText(std::span<const std::string> names);

}  // namespace Rotavue::Workbench
