#include "workbench/recording/far_mean.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace Rotavue::Workbench {
namespace {

// The scale of a picture reaches as far to one side as to the other: from here on an orbit takes
// less than a tenth of its width.
constexpr double LeastTimes = 5.0;

}  // namespace

std::optional<FarMean> farMean(SampleView values) {
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    double sum = 0.0;
    std::size_t count = 0;
    values.forEach([&](double value) {
        if (!std::isfinite(value)) return;
        least = std::min(least, value);
        most = std::max(most, value);
        sum += value;
        ++count;
    });
    if (!(most > least)) return std::nullopt;
    const double mean = sum / static_cast<double>(count);
    const double times = std::abs(mean) / (most - least);
    if (!(times >= LeastTimes)) return std::nullopt;
    return FarMean{mean, times};
}

double inThreeDigits(double value) {
    if (value == 0.0 || !std::isfinite(value)) return value;
    const double digits = 2.0 - std::floor(std::log10(std::abs(value)));
    const double scale = std::pow(10.0, std::abs(digits));
    return digits >= 0.0 ? std::round(value * scale) / scale : std::round(value / scale) * scale;
}

}  // namespace Rotavue::Workbench
