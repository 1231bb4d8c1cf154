#include "host_kit/memory/time_stamps.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace Rotavue::HostKit {

namespace {

std::vector<double> leastFromEach(std::vector<double> stamps) {
    double least = std::numeric_limits<double>::infinity();
    for (auto stamp = stamps.rbegin(); stamp != stamps.rend(); ++stamp) {
        least =
            std::isnan(*stamp) ? -std::numeric_limits<double>::infinity() : std::min(least, *stamp);
        *stamp = least;
    }
    return stamps;
}

}  // namespace

TimeStamps::TimeStamps(std::vector<double> list)
    : list_(std::move(list)), leastFrom_(leastFromEach(list_)) {}

double TimeStamps::at(std::int32_t index) const {
    const auto position = static_cast<std::uint32_t>(index);
    return position < list_.size() ? list_[position] : 0.0;
}

std::int32_t TimeStamps::lastNotAbove(double seconds) const {
    // Where the least from a place on is above the time, so is all that follows.
    const auto above = std::partition_point(leastFrom_.begin(), leastFrom_.end(),
                                            [seconds](double least) { return !(least > seconds); });
    if (above == leastFrom_.begin()) return 0;
    return static_cast<std::int32_t>(above - leastFrom_.begin() - 1);
}

}  // namespace Rotavue::HostKit
