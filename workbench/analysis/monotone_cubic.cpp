#include "workbench/analysis/monotone_cubic.h"

#include <algorithm>
#include <utility>

namespace Rotavue::Workbench {
namespace {

// Parts of the lesser secant. Any slope from 0 up would do; one above 0 lets the straight line
// beyond an end rise as well.
constexpr double LeastSlope = 0.1;
constexpr double SteepestSlope = 3.0;

// The slope, at the point between two intervals, of the parabola through their three ends.
double parabolaSlope(double width0, double secant0, double width1, double secant1) {
    return (width0 * secant1 + width1 * secant0) / (width0 + width1);
}

// The slope of the same parabola at the outer end of interval 0.
double parabolaEndSlope(double width0, double secant0, double width1, double secant1) {
    return ((2.0 * width0 + width1) * secant0 - width0 * secant1) / (width0 + width1);
}

double limited(double slope, double secant0, double secant1) {
    const double lesser = std::min(secant0, secant1);
    return std::clamp(slope, LeastSlope * lesser, SteepestSlope * lesser);
}

std::vector<double> slopesOf(const std::vector<double>& x, const std::vector<double>& y) {
    const std::size_t last = x.size() - 1;
    const auto width = [&](std::size_t i) { return x[i + 1] - x[i]; };
    const auto secant = [&](std::size_t i) { return (y[i + 1] - y[i]) / width(i); };
    if (last == 1) return {secant(0), secant(0)};
    std::vector<double> slopes(x.size());
    for (std::size_t i = 1; i < last; ++i) {
        slopes[i] = limited(parabolaSlope(width(i - 1), secant(i - 1), width(i), secant(i)),
                            secant(i - 1), secant(i));
    }
    slopes[0] =
        limited(parabolaEndSlope(width(0), secant(0), width(1), secant(1)), secant(0), secant(0));
    slopes[last] = limited(
        parabolaEndSlope(width(last - 1), secant(last - 1), width(last - 2), secant(last - 2)),
        secant(last - 1), secant(last - 1));
    return slopes;
}

}  // namespace

MonotoneCubic::MonotoneCubic(std::vector<double> x, std::vector<double> y)
    : x_(std::move(x)), y_(std::move(y)), slope_(slopesOf(x_, y_)) {}

double MonotoneCubic::at(double x) const {
    const auto above = std::upper_bound(x_.begin() + 1, x_.end() - 1, x);
    return inInterval(static_cast<std::size_t>(above - x_.begin()) - 1, x);
}

std::vector<double> MonotoneCubic::sweep(double first, double step, std::size_t count) const {
    std::vector<double> values(count);
    std::size_t interval = 0;
    for (std::size_t k = 0; k < count; ++k) {
        const double x = first + static_cast<double>(k) * step;
        while (interval + 2 < x_.size() && x >= x_[interval + 1])
            ++interval;
        values[k] = inInterval(interval, x);
    }
    return values;
}

double MonotoneCubic::inInterval(std::size_t i, double x) const {
    if (x <= x_.front()) return y_.front() + slope_.front() * (x - x_.front());
    if (x >= x_.back()) return y_.back() + slope_.back() * (x - x_.back());
    const double width = x_[i + 1] - x_[i];
    const double t = (x - x_[i]) / width;
    const double u = 1.0 - t;
    const double ends = y_[i] * (1.0 + 2.0 * t) * u * u + y_[i + 1] * t * t * (1.0 + 2.0 * u);
    return ends + width * t * u * (slope_[i] * u - slope_[i + 1] * t);
}

}  // namespace Rotavue::Workbench
