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

}  // namespace Rotavue::Workbench
