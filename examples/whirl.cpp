#include "examples/whirl.h"

#include <cmath>
#include <numbers>

namespace Rotavue::Examples {

double radians(double degrees) {
    return degrees * std::numbers::pi / 180.0;
}

double degrees(double radians) {
    return radians * 180.0 / std::numbers::pi;
}

Position positionOf(const Whirl& whirl, double shaftAngle, Sense sense) {
    const double turn = whirl.order * shaftAngle;
    const double with = turn + radians(whirl.forwardPhase);
    const double against = turn + radians(whirl.backwardPhase);
    const double up = sense == Sense::CounterClockwise ? 1.0 : -1.0;
    return {whirl.forward * std::cos(with) + whirl.backward * std::cos(against),
            up * (whirl.forward * std::sin(with) - whirl.backward * std::sin(against))};
}

Position positionOf(std::span<const Whirl> whirls, double shaftAngle, Sense sense) {
    Position sum;
    for (const Whirl& whirl : whirls)
        sum = sum + positionOf(whirl, shaftAngle, sense);
    return sum;
}

double readingOf(Position position, double probeAngle) {
    const double angle = radians(probeAngle);
    return position.u * std::sin(angle) + position.v * std::cos(angle);
}

// With a = probe angle, u sin a + v cos a of a circle running counter-clockwise is
// F sin(n theta + p + a), and of one running clockwise B sin(a - n theta - p).
std::complex<double> phasorAt(const Whirl& whirl, double probeAngle, Sense sense) {
    const double angle = sense == Sense::CounterClockwise ? probeAngle : 180.0 - probeAngle;
    const double with = radians(whirl.forwardPhase + angle - 90.0);
    const double against = radians(whirl.backwardPhase - angle + 90.0);
    return std::polar(whirl.forward, with) + std::polar(whirl.backward, against);
}

}  // namespace Rotavue::Examples
