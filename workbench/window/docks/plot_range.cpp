#include "workbench/window/docks/plot_range.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

PlotRange zoomed(const PlotRange& range, double fixed, double factor) {
    return {fixed - (fixed - range.from) * factor, fixed + (range.to - fixed) * factor};
}

PlotRange within(PlotRange range, const PlotRange& bounds, double shortest) {
    const double length = std::min(std::max(range.length(), shortest), bounds.length());
    const double middle = (range.from + range.to) / 2.0;
    const double from = std::clamp(middle - length / 2.0, bounds.from, bounds.to - length);
    return {from, from + length};
}

PlotRange turnedTo(const PlotRange& range, double value) {
    if (range.contains(value)) return range;
    const double moved = std::floor((value - range.from) / range.length()) * range.length();
    return {range.from + moved, range.to + moved};
}

PlotRange withRoom(const PlotRange& range) {
    constexpr double Room = 0.06;
    const double size = std::max(std::abs(range.from), std::abs(range.to));
    const double least = size > 0.0 ? size * 1e-6 : 1.0;
    const double room = std::max(range.length() * Room, least);
    return {range.from - room, range.to + room};
}

}  // namespace Rotavue::Workbench
