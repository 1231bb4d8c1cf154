#include "workbench/recording/time_column.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Rotavue::Workbench {
namespace {

constexpr double RoundingDust = 1e-9;
constexpr double LargestUncertainty = 0.01;  // relative; beyond it the steps are not equal at all

double largestStray(SampleView time, double step) {
    double largest = 0.0;
    for (std::size_t i = 0; i < time.size(); ++i) {
        const double place = time.front() + step * static_cast<double>(i);
        largest = std::max(largest, std::abs(time[i] - place));
    }
    return largest;
}

// A whole rate is likelier than one that differs from it by less than the column can tell.
double wholeIfLikely(double rate, double relativeError) {
    const double whole = std::round(rate);
    const double uncertainty = rate * relativeError;
    const bool tells = relativeError < LargestUncertainty && uncertainty < 0.5;
    return tells && std::abs(rate - whole) <= uncertainty ? whole : rate;
}

}  // namespace

std::optional<TimeSteps> readTimeSteps(SampleView time, double secondsPerUnit) {
    if (time.size() < 2 || !(time.back() > time.front())) return std::nullopt;
    const auto stepCount = static_cast<double>(time.size() - 1);
    const double span = time.back() - time.front();
    const double stray = largestStray(time, span / stepCount);
    const double rate = stepCount / (span * secondsPerUnit);
    const double relativeError = std::max(RoundingDust, 2.0 * stray / span);
    return TimeSteps{time.front() * secondsPerUnit, wholeIfLikely(rate, relativeError),
                     stray * secondsPerUnit};
}

double secondsPerUnit(std::string_view unit) {
    if (unit == "ms") return 1e-3;
    if (unit == "us" || unit == "\u00B5s" || unit == "\u03BCs") return 1e-6;
    return unit == "ns" ? 1e-9 : 1.0;
}

}  // namespace Rotavue::Workbench
