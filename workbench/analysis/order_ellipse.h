#pragma once

#include <string_view>

#include "workbench/analysis/field_vector.h"
#include "workbench/analysis/machine_frame.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// The way round that an order's orbit takes against the shaft. Unknown: the rotation is not given;
/// Straight: the backward part is as large as the forward part, to a thousandth.
enum class Precession { Unknown, Forward, Backward, Straight };

/// The ellipse that one order of both probes draws. As a complex number right + j * up it is
///     counterClockwise * e^(j order angle) + clockwise * e^(-j order angle)
/// two arrows turning against each other: their lengths add up to the long half axis, and the
/// longer one gives the sense. They are the lines at + order and - order of the full spectrum.
struct OrderEllipse {
    double counterClockwise = 0.0;  ///< length of that arrow, in the unit
    double clockwise = 0.0;
    double semiMajor = 0.0;  ///< half the long axis
    double semiMinor = 0.0;
    double tilt = 0.0;  ///< of the long axis, degrees clockwise from the top, 0 to below 180
    Precession precession = Precession::Unknown;

    /// The short axis by the long one: 0 for a line, 1 for a circle. 0 where there is neither.
    double ratio() const { return semiMajor > 0.0 ? semiMinor / semiMajor : 0.0; }
};

OrderEllipse ellipseOf(const OrderVectors& order, const MachineFacts& machine);

/// "unknown", "forward", "backward", "straight".
std::string_view toText(Precession precession);

}  // namespace Rotavue::Workbench
