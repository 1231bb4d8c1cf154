#include "workbench/window/docks/plot_ticks.h"

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
        const double shown = value == 0.0 ? 0.0 : value;  // no minus before a zero
        ticks.push_back(
            {value, QString::number(shown, 'f', std::min(step.decimals, MostDecimals))});
    }
    return ticks;
}

}  // namespace Rotavue::Workbench
