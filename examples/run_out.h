#pragma once

#include <complex>

namespace Rotavue::Examples {

// What a probe reads although the shaft's centre stands still, because its surface isn't round:
// a bow, an oval and one scratch. It is fixed to the surface, so every probe reads the same shape,
// each when the place passes it. Heights in um, places in degrees behind the keyphasor's mark.
struct RunOut {
    double bow = 0.0;
    double bowPlace = 0.0;  // of its high spot
    double oval = 0.0;
    double ovalPlace = 0.0;  // of one of its two high spots
    double scratch = 0.0;    // depth
    double scratchPlace = 0.0;
    double scratchWidth = 5.0;  // degrees, standard deviation of its bell shape
};

// The height of the surface at a place.
double heightAt(const RunOut& runOut, double place);

// What the run-out adds to order 1, 2.. of a probe's reading; `ahead` is how many degrees the place
// under the probe is behind the mark at shaft angle 0. The reading is |c| cos(order * angle - lag),
// c = |c| exp(-j lag).
std::complex<double> phasorAt(const RunOut& runOut, int order, double ahead);

}  // namespace Rotavue::Examples
