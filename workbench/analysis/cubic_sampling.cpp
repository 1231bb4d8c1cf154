#include "workbench/analysis/cubic_sampling.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace Rotavue::Workbench {
namespace {

double linearAt(SampleView samples, double place) {
    const auto last = static_cast<std::ptrdiff_t>(samples.size()) - 2;
    if (last < 0) return samples.front();
    const auto first = std::clamp(static_cast<std::ptrdiff_t>(place), std::ptrdiff_t{0}, last);
    const double part = place - static_cast<double>(first);
    const double before = samples[static_cast<std::size_t>(first)];
    return before + part * (samples[static_cast<std::size_t>(first) + 1] - before);
}

}  // namespace

double cubicAt(SampleView samples, double place) {
    if (samples.size() < 4) return linearAt(samples, place);
    const auto last = static_cast<std::ptrdiff_t>(samples.size()) - 4;
    const auto first = std::clamp(static_cast<std::ptrdiff_t>(place) - 1, std::ptrdiff_t{0}, last);
    const auto at = static_cast<std::size_t>(first);
    const std::array<double, 4> p{samples[at], samples[at + 1], samples[at + 2], samples[at + 3]};
    const double t = place - static_cast<double>(first);  // 1 to 2, but next to an end
    const double t1 = t - 1.0;
    const double t2 = t - 2.0;
    const double t3 = t - 3.0;
    const double outer = (p[3] * t - p[0] * t3) * t1 * t2 / 6.0;
    const double inner = (p[1] * t2 - p[2] * t1) * t * t3 / 2.0;
    return outer + inner;
}

}  // namespace Rotavue::Workbench
