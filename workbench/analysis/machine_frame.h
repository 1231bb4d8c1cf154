#pragma once

#include <complex>

#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// A place as the picture shows it: x to the right, y upward.
struct MachinePoint {
    double x = 0.0;
    double y = 0.0;
};

/// What the two probes see: displacement toward each.
struct ProbeValues {
    double x = 0.0;
    double y = 0.0;
};

/// Turns what the two probes see into the picture's right and up. Probe angles are degrees
/// clockwise from the top, so a probe looks along (sin angle, cos angle), and
///     x = X sin(xAngle) + Y sin(yAngle),  y = X cos(xAngle) + Y cos(yAngle)
/// which is what the graph does with every sample. It is exact for probes at right angles.
class MachineFrame {
public:
    explicit MachineFrame(const MachineFacts& machine);

    MachinePoint point(const ProbeValues& probes) const {
        return {probes.x * xRight_ + probes.y * yRight_, probes.x * xUp_ + probes.y * yUp_};
    }

    /// To the right and upward, of phasors.
    std::complex<double> right(std::complex<double> x, std::complex<double> y) const {
        return x * xRight_ + y * yRight_;
    }
    std::complex<double> up(std::complex<double> x, std::complex<double> y) const {
        return x * xUp_ + y * yUp_;
    }

    /// Whether two directions can be told apart: false when the probes look along one line.
    bool isPlane() const;

    /// The probe values that the graph shows at a place; only where `isPlane`.
    ProbeValues probesAt(const MachinePoint& place) const;

private:
    double determinant() const { return xRight_ * yUp_ - yRight_ * xUp_; }

    double xRight_, xUp_;
    double yRight_, yUp_;
};

}  // namespace Rotavue::Workbench
