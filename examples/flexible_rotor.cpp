#include "examples/flexible_rotor.h"

#include <cmath>
#include <numbers>

namespace Rotavue::Examples {
namespace {

// The motion along both axes at shaft angle 0, as phasors of exp(j shaft angle). The vertical one
// runs a quarter turn behind for rotation counter-clockwise, ahead for clockwise.
struct AxisPhasors {
    std::complex<double> u;
    std::complex<double> v;
};

AxisPhasors axisPhasors(const FlexibleRotor& rotor, double rpm, Sense sense) {
    const double quarter = sense == Sense::CounterClockwise ? -90.0 : 90.0;
    const auto spot = std::polar(1.0, radians(rotor.heavySpot));
    return {spot * unbalanceResponse(rotor, rotor.horizontalCritical, rpm),
            spot * unbalanceResponse(rotor, rotor.verticalCritical, rpm) *
                std::polar(1.0, radians(quarter))};
}

}  // namespace

std::complex<double> unbalanceResponse(const FlexibleRotor& rotor, double critical, double rpm) {
    const double ratio = rpm / critical;
    const std::complex<double> stiffness(1.0 - ratio * ratio, 2.0 * rotor.dampingRatio * ratio);
    return rotor.eccentricity * ratio * ratio / stiffness;
}

std::complex<double> phasorAt(const FlexibleRotor& rotor, double rpm, double probeAngle,
                              Sense sense) {
    const AxisPhasors axes = axisPhasors(rotor, rpm, sense);
    const double angle = radians(probeAngle);
    return axes.u * std::sin(angle) + axes.v * std::cos(angle);
}

Position restingPlace(const FlexibleRotor& rotor, double rpm, Sense sense) {
    const double ratio = 1.0 / (1.0 + rpm / rotor.liftSpeed);
    const double attitude =
        std::atan2(std::numbers::pi / 4.0 * std::sqrt(1.0 - ratio * ratio), ratio);
    const double aside = sense == Sense::CounterClockwise ? 1.0 : -1.0;
    const double distance = rotor.bearingClearance * ratio;
    return {aside * distance * std::sin(attitude), -distance * std::cos(attitude)};
}

Position positionOf(const FlexibleRotor& rotor, double rpm, double shaftAngle, Sense sense) {
    const AxisPhasors axes = axisPhasors(rotor, rpm, sense);
    const auto turned = std::polar(1.0, shaftAngle);
    return restingPlace(rotor, rpm, sense) +
           Position{(axes.u * turned).real(), (axes.v * turned).real()};
}

}  // namespace Rotavue::Examples
