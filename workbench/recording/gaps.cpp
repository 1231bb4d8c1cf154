#include "workbench/recording/gaps.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

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

std::size_t countGaps(SampleView x, SampleView y) {
    std::array<double, SampleView::BlockLength> xRoom, yRoom;
    std::size_t count = 0;
    for (std::size_t first = 0; first < x.size();) {
        const std::span<const double> xs = x.blockAt(first, xRoom);
        const std::span<const double> ys = y.blockAt(first, yRoom);
        const std::size_t size = std::min(xs.size(), ys.size());
        for (std::size_t i = 0; i < size; ++i)
            count += isPair(xs[i], ys[i]) ? 0U : 1U;
        first += size;
    }
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
