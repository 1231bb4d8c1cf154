#pragma once

#include <string>

namespace Rotavue::Workbench {

/// A number as people read it: at most `digits` significant digits, but never fewer than it has
/// before the point; a decimal point whatever the locale; no trailing zeros; an exponent only for
/// the very large and the very small.
std::string shortText(double value, int digits = 4);

}  // namespace Rotavue::Workbench
