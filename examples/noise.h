#pragma once

#include <cstdint>
#include <random>

namespace Rotavue::Examples {

// Noise of mean 0, normally distributed and the same on every machine for one seed.
class Noise {
public:
    explicit Noise(std::uint64_t seed) : engine_(seed) {}

    // The next value of a noise of this root mean square.
    double next(double rms);

private:
    double uniform();

    std::mt19937_64 engine_;
};

}  // namespace Rotavue::Examples
