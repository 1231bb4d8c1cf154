#pragma once

#include <cmath>
#include <complex>
#include <numbers>

namespace Rotavue::Workbench {

inline constexpr double RadiansPerDegree = std::numbers::pi / 180.0;

/// How amplitudes are told: half the movement, its root mean square, or the whole movement.
enum class AmplitudeScale { Peak, Rms, PeakPeak };

/// What a peak amplitude is multiplied with.
inline double scaleFactor(AmplitudeScale scale) {
    switch (scale) {
        case AmplitudeScale::Rms:
            return 1.0 / std::numbers::sqrt2;
        case AmplitudeScale::PeakPeak:
            return 2.0;
        case AmplitudeScale::Peak:
            break;
    }
    return 1.0;
}

/// One order of one probe as the field writes it: the signal is
///     amplitude * cos(order * shaft angle - phase lag)
/// so that the lag says how far, in degrees of that order's own cycle, the next positive peak comes
/// behind the keyphasor's pulse.
struct FieldVector {
    double amplitude = 0.0;  ///< peak, in the recording's unit
    double phaseLag = 0.0;   ///< degrees, 0 to below 360

    /// The signal's value at an angle of the shaft in turns.
    double valueAt(double order, double turns) const {
        const double cycle = 2.0 * std::numbers::pi * order * turns;
        return amplitude * std::cos(cycle - phaseLag * RadiansPerDegree);
    }

    /// amplitude * e^(-j lag): multiplied with e^(j order angle), its real part is the signal.
    std::complex<double> phasor() const {
        return std::polar(amplitude, -phaseLag * RadiansPerDegree);
    }
};

/// The vector of the signal cosine * cos(a) + sine * sin(a): amplitude and lag are the length and
/// the angle of (cosine, sine).
FieldVector fieldVector(double cosine, double sine);

/// One order of both probes.
struct OrderVectors {
    double order = 0.0;  ///< cycles per turn of the shaft
    FieldVector x;
    FieldVector y;
};

}  // namespace Rotavue::Workbench
