#pragma once

#include "workbench/bench/plane.h"

namespace Rotavue::Workbench {

/// How far the axes of a control reach, in the unit.
struct AxisLimits {
    double xMin = -1.0;
    double xMax = 1.0;
    double yMin = -1.0;
    double yMax = 1.0;
    bool manual = false;  ///< set by the user, not found by the control

    double xSpan() const { return xMax - xMin; }
    double ySpan() const { return yMax - yMin; }

    /// How many times as long a unit is upright as across; 1 where that is not known.
    double ratio() const;
    bool areEqual() const;

    bool operator==(const AxisLimits&) const = default;
};

/// What settings say of the limits; found ones stand there too.
AxisLimits limitsIn(const Settings& settings);

/// What the control's last frame had, or what its user has set. Asks the control.
AxisLimits axisLimits(Plane& plane);

/// The plane's settings with one scale for both axes that holds what both of them held: automatic
/// limits stay automatic.
Settings withEqualAxes(Plane& plane);

Settings withLimits(Settings settings, const AxisLimits& limits);

/// The plane's settings with these limits; those of an automatic scale are of its last frame.
Settings withLimits(const Plane& plane, const AxisLimits& limits);

}  // namespace Rotavue::Workbench
