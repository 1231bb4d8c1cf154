#include "examples/noise.h"

#include <cmath>
#include <numbers>

namespace Rotavue::Examples {

// Box and Muller's transform of two uniform numbers; the standard library's own distributions
// differ from one library to the next.
double Noise::next(double rms) {
    const double radius = std::sqrt(-2.0 * std::log(1.0 - uniform()));
    return rms * radius * std::cos(2.0 * std::numbers::pi * uniform());
}

// 0 to below 1, in steps of 2^-53.
double Noise::uniform() {
    return static_cast<double>(engine_() >> 11) * 0x1p-53;
}

}  // namespace Rotavue::Examples
