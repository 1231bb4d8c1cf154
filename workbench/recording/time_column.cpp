#include "workbench/recording/time_column.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Rotavue::Workbench {
namespace {

constexpr double RoundingDust = 1e-9;

double withoutDust(double rate) {
    const double whole = std::round(rate);
    return std::abs(rate - whole) <= RoundingDust * rate ? whole : rate;
}

double largestStray(std::span<const double> time, double step) {
    double largest = 0.0;
    for (std::size_t i = 0; i < time.size(); ++i) {
        const double place = time.front() + step * static_cast<double>(i);
        largest = std::max(largest, std::abs(time[i] - place));
    }
    return largest;
}

}  // namespace

std::optional<TimeSteps> readTimeSteps(std::span<const double> time, double secondsPerUnit) {
    if (time.size() < 2 || !(time.back() > time.front())) return std::nullopt;
    const auto stepCount = static_cast<double>(time.size() - 1);
    const double span = time.back() - time.front();
    return TimeSteps{time.front() * secondsPerUnit,
                     withoutDust(stepCount / (span * secondsPerUnit)),
                     largestStray(time, span / stepCount) * secondsPerUnit};
}

double secondsPerUnit(std::string_view unit) {
    if (unit == "ms") return 1e-3;
    if (unit == "us" || unit == "\u00B5s" || unit == "\u03BCs") return 1e-6;
    return unit == "ns" ? 1e-9 : 1.0;
}

}  // namespace Rotavue::Workbench
