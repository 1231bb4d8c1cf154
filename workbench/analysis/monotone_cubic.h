#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace Rotavue::Workbench {

/// A smooth curve through points that rise in x and in y, which rises itself everywhere: what a
/// shaft's angle over time is. A piecewise cubic Hermite interpolant; the slope at a point is that
/// of the parabola through it and its two neighbours, so that constant acceleration is met exactly,
/// held between a tenth and three times the lesser of the two secants beside it, which keeps the
/// curve from falling back (F. N. Fritsch and R. E. Carlson, Monotone piecewise cubic
/// interpolation, SIAM J. Numer. Anal. 17, 1980). Beyond the first and the last point it goes on
/// straight.
class MonotoneCubic {
public:
    /// Two points or more; each x and each y above the one before.
    MonotoneCubic(std::vector<double> x, std::vector<double> y);

    double at(double x) const;

    /// The values at `count` places that begin at `first` and lie `step` apart, `step` above 0.
    std::vector<double> sweep(double first, double step, std::size_t count) const;

private:
    double inInterval(std::size_t interval, double x) const;

    std::vector<double> x_;
    std::vector<double> y_;
    std::vector<double> slope_;
};

}  // namespace Rotavue::Workbench
