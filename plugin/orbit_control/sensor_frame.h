#pragma once

#include "plugin/orbit_graph/geometry.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {

/// The two sensor angles as sines and cosines, taken once per curve. They turn a pair of sensor
/// values into the machine's frame; angles are measured from the y axis of the drawing.
struct SensorFrame {
    double xSin;
    double xCos;
    double ySin;
    double yCos;

    /// Angles in degrees.
    SensorFrame(double xAngle, double yAngle)
        : xSin(std::sin(radians(xAngle))),
          xCos(std::cos(radians(xAngle))),
          ySin(std::sin(radians(yAngle))),
          yCos(std::cos(radians(yAngle))) {}

    /// `a` is the value of the sensor at the X angle, `b` of the one at the Y angle.
    Point turned(double a, double b) const { return {a * xSin + b * ySin, a * xCos + b * yCos}; }
};

}  // namespace Meridax::VisualControls::Rotavue
