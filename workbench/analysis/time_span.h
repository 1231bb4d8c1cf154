#pragma once

#include <limits>

namespace Rotavue::Workbench {

/// A stretch of a recording, in seconds after its first sample; the whole recording unless set.
struct TimeSpan {
    double from = 0.0;
    double to = std::numeric_limits<double>::infinity();

    double length() const { return to - from; }
    bool contains(double time) const { return time >= from && time <= to; }

    bool operator==(const TimeSpan&) const = default;
};

}  // namespace Rotavue::Workbench
