#pragma once

#include "workbench/window/docks/plot_range.h"

#include <QString>

#include <vector>

namespace Rotavue::Workbench {

struct PlotTick {
    double value = 0.0;
    QString text;
};

/// Round values in the range, 1, 2 or 5 times a power of ten apart, at most `most` of them, with as
/// many digits behind the point as tell them apart.
std::vector<PlotTick> plotTicks(const PlotRange& range, int most);

/// Those of an axis of values: two at least, also where that is more than `most`, since one number
/// alone tells no scale.
std::vector<PlotTick> valueTicks(const PlotRange& range, int most);

/// The first and the last of rising ticks, and what lies between them at that distance or more.
std::vector<PlotTick> apart(std::vector<PlotTick> ticks, double distance);

}  // namespace Rotavue::Workbench
