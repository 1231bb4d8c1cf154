#include "workbench/window/docks/plot_ticks.h"

#include "workbench/window/docks/number_text.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

namespace {

struct Step {
    double size;
    int decimals;
};

/// The smallest round step that is not below.
Step roundStep(double least) {
    const int exponent = static_cast<int>(std::floor(std::log10(least)));
    const double power = std::pow(10.0, exponent);
    for (const double digit : {1.0, 2.0, 5.0})
        if (digit * power >= least * (1.0 - 1e-9)) return {digit * power, std::max(0, -exponent)};
    return {10.0 * power, std::max(0, -exponent - 1)};
}

}  // namespace

std::vector<PlotTick> plotTicks(const PlotRange& range, int most) {
    constexpr int MostDecimals = 12;
    if (most < 1 || !(range.length() > 0.0) || !std::isfinite(range.length())) return {};
    const Step step = roundStep(range.length() / most);
    std::vector<PlotTick> ticks;
    const double first = std::ceil(range.from / step.size - 1e-9);
    for (int i = 0; i <= most; ++i) {
        const double value = (first + i) * step.size;
        if (value > range.to + 1e-9 * step.size) break;
        ticks.push_back({value, placed(value, std::min(step.decimals, MostDecimals))});
    }
    return ticks;
}

// Two steps of half a range or less always have room in it.
std::vector<PlotTick> valueTicks(const PlotRange& range, int most) {
    constexpr int AlwaysTwo = 5;
    std::vector<PlotTick> ticks = plotTicks(range, most);
    for (int more = 2; ticks.size() < 2 && more <= AlwaysTwo; ++more)
        ticks = plotTicks(range, more);
    return ticks;
}

std::vector<PlotTick> apart(std::vector<PlotTick> ticks, double distance) {
    if (ticks.size() < 3) return ticks;
    const PlotTick last = ticks.back();
    std::vector<PlotTick> kept{ticks.front()};
    for (const PlotTick& tick : ticks) {
        const bool clear = tick.value - kept.back().value >= distance;
        if (clear && last.value - tick.value >= distance) kept.push_back(tick);
    }
    kept.push_back(last);
    return kept;
}

}  // namespace Rotavue::Workbench
