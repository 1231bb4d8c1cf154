#include "workbench/analysis/order_ellipse.h"

#include <cmath>

namespace Rotavue::Workbench {
namespace {

using Complex = std::complex<double>;

constexpr double StraightPart = 1e-3;

Precession precessionOf(const OrderEllipse& ellipse, const MachineFacts& machine) {
    if (ellipse.semiMinor <= StraightPart * ellipse.semiMajor) return Precession::Straight;
    if (!machine.rotation) return Precession::Unknown;
    const bool turnsLeft = *machine.rotation == Rotation::CounterClockwise;
    const bool orbitsLeft = ellipse.counterClockwise > ellipse.clockwise;
    return turnsLeft == orbitsLeft ? Precession::Forward : Precession::Backward;
}

// The arrows meet on the long axis, halfway between their angles; up is 0 and right is 90 there.
double tiltOf(Complex left, Complex right) {
    const double fromRight = 0.5 * (std::arg(left) + std::arg(right)) / RadiansPerDegree;
    const double fromTop = std::fmod(90.0 - fromRight, 180.0);
    return fromTop < 0.0 ? fromTop + 180.0 : fromTop;
}

}  // namespace

OrderEllipse ellipseOf(const OrderVectors& order, const MachineFacts& machine) {
    const MachineFrame frame(machine);
    const Complex right = frame.right(order.x.phasor(), order.y.phasor());
    const Complex up = frame.up(order.x.phasor(), order.y.phasor());
    const Complex j(0.0, 1.0);
    const Complex left = 0.5 * (right + j * up);
    const Complex clockwise = 0.5 * std::conj(right - j * up);
    OrderEllipse ellipse;
    ellipse.counterClockwise = std::abs(left);
    ellipse.clockwise = std::abs(clockwise);
    ellipse.semiMajor = ellipse.counterClockwise + ellipse.clockwise;
    ellipse.semiMinor = std::abs(ellipse.counterClockwise - ellipse.clockwise);
    ellipse.tilt = tiltOf(left, clockwise);
    ellipse.precession = precessionOf(ellipse, machine);
    return ellipse;
}

std::string_view toText(Precession precession) {
    switch (precession) {
        case Precession::Forward:
            return "forward";
        case Precession::Backward:
            return "backward";
        case Precession::Straight:
            return "straight";
        case Precession::Unknown:
            break;
    }
    return "unknown";
}

}  // namespace Rotavue::Workbench
