#pragma once

#include "workbench/analysis/shaft_track.h"
#include "workbench/bench/plane_source.h"
#include "workbench/window/docks/time_plot.h"

#include <QString>

#include <memory>
#include <vector>

namespace Rotavue::Workbench {

/// What the plots over time show of one recording. Made of every sample once, and nothing of it
/// changes after that: a worker makes it.
struct TimeLanes {
    std::vector<PlotLane> probes;  ///< X and Y
    std::vector<PlotLane> speed;   ///< empty without keyphasor
    std::vector<double> passings;  ///< of the keyphasor, s, rising
};

TimeLanes timeLanes(const std::shared_ptr<const PlaneSource>& source);

}  // namespace Rotavue::Workbench
