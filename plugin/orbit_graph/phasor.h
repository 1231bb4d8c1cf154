#pragma once

#include "plugin/orbit_graph/geometry.h"

#include <cmath>
#include <cstdint>

namespace Meridax::VisualControls::Rotavue {

/// A harmonic's ellipse is traced in whole degrees. The last 20 of each turn stay open, as the gap
/// of an averaged orbit does.
inline constexpr std::int32_t EllipseSteps = 340;

/// An oscillation of one harmonic, from its complex amplitude: the real part in x, the imaginary
/// part in y. Drawing, extents and copied text take it from here, so that they agree to the bit.
class Phasor {
public:
    explicit Phasor(const Point& complex)
        : magnitude_(std::sqrt(complex.x * complex.x + complex.y * complex.y)),
          phase_(std::atan2(complex.y, complex.x)) {}

    /// The deflection at an angle of the turn, in radians.
    double at(double angle) const { return magnitude_ * std::sin(angle + phase_); }

private:
    double magnitude_;
    double phase_;
};

}  // namespace Meridax::VisualControls::Rotavue
