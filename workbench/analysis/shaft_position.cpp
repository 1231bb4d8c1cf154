#include "workbench/analysis/shaft_position.h"

#include <cmath>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/field_vector.h"
#include "workbench/analysis/mean_position.h"
#include "workbench/analysis/short_text.h"

namespace Rotavue::Workbench {
namespace {

constexpr double LeastEccentricity = 0.005;

[[noreturn]] void refuse(const std::string& reason) {
    throw AnalysisError("the shaft centre " + reason);
}

// Probe values of the place where the shaft rests.
ProbeValues restPlace(const MachineFacts& machine, RestPosition rest) {
    if (rest == RestPosition::Centre) return {};
    if (!(machine.clearanceHeight > 0.0))
        refuse("at the bottom of the clearance needs the clearance's height");
    const MachineFrame frame(machine);
    if (!frame.isPlane())
        refuse("at the bottom of the clearance needs probes that look along two directions");
    return frame.probesAt({0.0, -0.5 * machine.clearanceHeight});
}

// Down is (0, -1), and counter-clockwise of it lies the right.
double degreesFromDown(const MachinePoint& place, Rotation rotation) {
    const double ahead = rotation == Rotation::CounterClockwise ? place.x : -place.x;
    return std::atan2(ahead, -place.y) / RadiansPerDegree;
}

}  // namespace

ProbeValues shiftToCentre(const Recording& recording, RestPosition rest,
                          const std::optional<TimeSpan>& restSpan) {
    if (recording.coupling == Coupling::Ac)
        refuse("needs the mean of the gaps, which AC coupling takes away");
    const ProbeValues place = restPlace(recording.machine, rest);
    if (!restSpan) return place;
    const std::optional<ProbeValues> mean = meanPosition(recording, *restSpan);
    if (!mean)
        refuse("finds no samples at rest between " + shortText(restSpan->from) + " and " +
               shortText(restSpan->to) + " s");
    return {place.x - mean->x, place.y - mean->y};
}

std::optional<ShaftPosition> shaftPosition(const MachineFacts& machine,
                                           const ProbeValues& displacement) {
    const MachineFrame frame(machine);
    const bool hasClearance = machine.clearanceWidth > 0.0 && machine.clearanceHeight > 0.0;
    if (!hasClearance || !frame.isPlane()) return {};
    const MachinePoint place = frame.point(displacement);
    ShaftPosition position;
    position.eccentricity = std::hypot(place.x / (0.5 * machine.clearanceWidth),
                                       place.y / (0.5 * machine.clearanceHeight));
    if (machine.rotation && position.eccentricity >= LeastEccentricity)
        position.attitude = degreesFromDown(place, *machine.rotation);
    return position;
}

}  // namespace Rotavue::Workbench
