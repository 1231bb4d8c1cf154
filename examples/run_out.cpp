#include "examples/run_out.h"

#include <cmath>
#include <numbers>

#include "examples/whirl.h"

namespace Rotavue::Examples {
namespace {

// The n-th cosine coefficient of a bell of height 1 and standard deviation `width` on a circle:
// 1 / pi times the integral of exp(-b^2 / 2 width^2) cos(n b).
double bellCoefficient(int order, double width) {
    const double w = radians(width);
    return w * std::sqrt(2.0 / std::numbers::pi) * std::exp(-0.5 * order * order * w * w);
}

std::complex<double> turned(double size, double angle) {
    return size * std::polar(1.0, radians(angle));
}

}  // namespace

double heightAt(const RunOut& runOut, double place) {
    const double fromScratch = std::remainder(place - runOut.scratchPlace, 360.0);
    const double bell = fromScratch / runOut.scratchWidth;
    return runOut.bow * std::cos(radians(place - runOut.bowPlace)) +
           runOut.oval * std::cos(2.0 * radians(place - runOut.ovalPlace)) -
           runOut.scratch * std::exp(-0.5 * bell * bell);
}

std::complex<double> phasorAt(const RunOut& runOut, int order, double ahead) {
    std::complex<double> sum = turned(-runOut.scratch * bellCoefficient(order, runOut.scratchWidth),
                                      order * (ahead - runOut.scratchPlace));
    if (order == 1) sum += turned(runOut.bow, ahead - runOut.bowPlace);
    if (order == 2) sum += turned(runOut.oval, 2.0 * (ahead - runOut.ovalPlace));
    return sum;
}

}  // namespace Rotavue::Examples
