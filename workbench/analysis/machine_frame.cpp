#include "workbench/analysis/machine_frame.h"

#include <cmath>

#include "workbench/analysis/field_vector.h"

namespace Rotavue::Workbench {
namespace {

constexpr double LeastDeterminant = 0.1;  // the sine of 6 degrees

}  // namespace

MachineFrame::MachineFrame(const MachineFacts& machine)
    : xRight_(std::sin(machine.xAngle * RadiansPerDegree)),
      xUp_(std::cos(machine.xAngle * RadiansPerDegree)),
      yRight_(std::sin(machine.yAngle * RadiansPerDegree)),
      yUp_(std::cos(machine.yAngle * RadiansPerDegree)) {}

bool MachineFrame::isPlane() const {
    return std::abs(determinant()) >= LeastDeterminant;
}

ProbeValues MachineFrame::probesAt(const MachinePoint& place) const {
    return {(place.x * yUp_ - place.y * yRight_) / determinant(),
            (place.y * xRight_ - place.x * xUp_) / determinant()};
}

}  // namespace Rotavue::Workbench
