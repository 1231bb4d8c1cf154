#pragma once

#include <cmath>

namespace Rotavue::Workbench {

inline constexpr double DegreesPerTurn = 360.0;

/// The same place on the circle as 0 to below 360: -90 becomes 270, 360 becomes 0.
inline double wrappedDegrees(double degrees) {
    // Most angles are there already; "+ 0.0" makes -0 what a text should show.
    if (degrees >= 0.0 && degrees < DegreesPerTurn) return degrees + 0.0;
    const double rest = std::fmod(degrees, DegreesPerTurn);
    const double wrapped = rest < 0.0 ? rest + DegreesPerTurn : rest;
    /// A tiny negative angle rounds to a full turn, and -0 is no number that a text should show.
    return wrapped < DegreesPerTurn ? wrapped + 0.0 : 0.0;
}

}  // namespace Rotavue::Workbench
