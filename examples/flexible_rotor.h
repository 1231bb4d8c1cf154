#pragma once

#include <complex>

#include "examples/whirl.h"

namespace Rotavue::Examples {

// A disk on a flexible shaft in a plain bearing, at a speed that changes slowly enough for every
// speed to show its steady motion. Stiffness differs between horizontal and vertical, so the orbit
// is an ellipse that turns and flattens as the speed passes the two critical speeds.
struct FlexibleRotor {
    double eccentricity = 0.0;        // um, of the disk's centre of mass
    double heavySpot = 0.0;           // degrees ahead of the keyphasor's mark
    double horizontalCritical = 1.0;  // rpm
    double verticalCritical = 1.0;    // rpm
    double dampingRatio = 0.1;
    double bearingClearance = 0.0;  // um, radial
    double liftSpeed = 1.0;         // rpm at which the shaft runs at half its clearance
};

// The 1X response to the unbalance along one direction, as a phasor with the heavy spot's angle as
// its zero: with r = speed / critical, e r^2 / (1 - r^2 + 2 j damping r).
std::complex<double> unbalanceResponse(const FlexibleRotor& rotor, double critical, double rpm);

// The 1X motion that a probe reads at one speed: |c| cos(shaft angle - lag), c = |c| exp(-j lag).
std::complex<double> phasorAt(const FlexibleRotor& rotor, double rpm, double probeAngle,
                              Sense sense);

// Where the shaft's centre rests in its bearing: at the bottom when it stands, then lifting and
// moving aside in the sense of rotation. The eccentricity ratio is 1 / (1 + rpm / liftSpeed), the
// attitude angle that of a short bearing, tan a = pi / 4 sqrt(1 - ratio^2) / ratio.
Position restingPlace(const FlexibleRotor& rotor, double rpm, Sense sense);

// Resting place and 1X motion together, at a shaft angle in radians.
Position positionOf(const FlexibleRotor& rotor, double rpm, double shaftAngle, Sense sense);

}  // namespace Rotavue::Examples
