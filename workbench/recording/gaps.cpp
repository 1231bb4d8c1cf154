#include "workbench/recording/gaps.h"

#include <cmath>

namespace Rotavue::Workbench {
namespace {

bool isPair(double x, double y) {
    return !std::isnan(x) && !std::isnan(y);
}

std::size_t firstPair(const std::vector<double>& x, const std::vector<double>& y) {
    std::size_t i = 0;
    while (i < x.size() && !isPair(x[i], y[i]))
        ++i;
    return i;
}

}  // namespace

std::size_t countGaps(std::span<const double> x, std::span<const double> y) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < x.size(); ++i)
        count += isPair(x[i], y[i]) ? 0U : 1U;
    return count;
}

void holdGaps(std::vector<double>& x, std::vector<double>& y) {
    std::size_t held = firstPair(x, y);
    if (held == x.size()) return;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (isPair(x[i], y[i])) {
            held = i;
        } else {
            x[i] = x[held];
            y[i] = y[held];
        }
    }
}

}  // namespace Rotavue::Workbench
