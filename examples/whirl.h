#pragma once

#include <complex>
#include <span>

namespace Rotavue::Examples {

// A place of the shaft's centre in um: u to the right, v up, as in the picture.
struct Position {
    double u = 0.0;
    double v = 0.0;
};

inline Position operator+(Position a, Position b) {
    return {a.u + b.u, a.v + b.v};
}

// The sense of rotation as seen in the picture.
enum class Sense { Clockwise, CounterClockwise };

// A motion at `order` times the shaft's speed: a circle in the sense of rotation and one against
// it, which together are an ellipse. Radii in um, phases in degrees, each counted in the sense of
// its own circle from the horizontal at shaft angle 0.
struct Whirl {
    double order = 1.0;
    double forward = 0.0;
    double forwardPhase = 0.0;
    double backward = 0.0;
    double backwardPhase = 0.0;
};

double radians(double degrees);
double degrees(double radians);

// Where the whirl has the shaft at a shaft angle in radians, counted from the keyphasor's pulse and
// running on from turn to turn.
Position positionOf(const Whirl& whirl, double shaftAngle, Sense sense);
Position positionOf(std::span<const Whirl> whirls, double shaftAngle, Sense sense);

// What a probe at `angle` degrees clockwise from the top reads: the displacement toward it.
double readingOf(Position position, double probeAngle);

// The same motion as the probe sees it: its reading is |c| cos(order * shaft angle - lag), with the
// phasor c = |c| exp(-j lag).
std::complex<double> phasorAt(const Whirl& whirl, double probeAngle, Sense sense);

}  // namespace Rotavue::Examples
