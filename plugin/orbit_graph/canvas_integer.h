#pragma once

#include <cstdint>
#include <limits>

namespace Meridax::VisualControls::Rotavue {

/// The one way from a `double` to an integer of the canvas: truncation toward zero. A value outside
/// the 32-bit range, and what is no number, becomes the smallest 32-bit integer.
constexpr std::int32_t canvasInteger(double value) {
    constexpr double BelowSmallest = -2147483649.0;
    constexpr double AboveLargest = 2147483648.0;
    const bool representable = BelowSmallest < value && value < AboveLargest;
    return representable ? static_cast<std::int32_t>(value)
                         : std::numeric_limits<std::int32_t>::min();
}

}  // namespace Meridax::VisualControls::Rotavue
