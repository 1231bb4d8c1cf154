#pragma once

#include "workbench/analysis/time_span.h"
#include "workbench/bench/plane.h"

#include <functional>
#include <optional>

namespace Rotavue::Workbench {

/// What actions on a stretch of a recording ask their window.
struct MarkedPlane {
    std::function<Plane*()> plane;                     ///< the current one; null: nothing is open
    std::function<std::optional<TimeSpan>()> stretch;  ///< what is marked of it
};

}  // namespace Rotavue::Workbench
