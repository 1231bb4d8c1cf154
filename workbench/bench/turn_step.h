#pragma once

namespace Rotavue::Workbench {

class Plane;

/// The time, s after the first sample, that is so many passings of the keyphasor behind `from`, or
/// before it for a negative number: that of the first sample of a turn, so that the control shows
/// whole turns up to there. Where the shaft does not turn, a step is what the plane shows.
double steppedTime(const Plane& plane, double from, int turns);

}  // namespace Rotavue::Workbench
