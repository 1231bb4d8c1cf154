#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace Rotavue::Workbench {

/// The shaft's angle at each sample, as the pulses of a keyphasor tell it: 0 at the first pulse,
/// 360 / `pulsesPerTurn` degrees further at each one after it, linear in between, and going on
/// before the first and behind the last pulse with the neighbouring period. It is found where it is
/// asked for: in the time of a division, a long recording saves its largest column.
class PulseAngle {
public:
    /// `pulses` are two or more places in samples, rising; `pulsesPerTurn` is 1 or more.
    PulseAngle(std::vector<double> pulses, int pulsesPerTurn, std::size_t sampleCount);

    std::size_t size() const { return sampleCount_; }

    /// The bytes that it takes: those of the pulses and a sixteenth of a byte a sample.
    std::size_t memoryUse() const;

    /// In degrees, 0 to below 360, for samples below `size`.
    double operator[](std::size_t sample) const { return at(periodOf(sample)).angleAt(sample); }

    /// The angles from the sample `first` on, as many as `angles` has room for.
    void copyTo(std::size_t first, std::span<double> angles) const;

private:
    struct Period {
        double angleAt(std::size_t sample) const;

        double begin;   ///< the place of its pulse
        double length;  ///< samples
        double pulse;   ///< of its turn, from 0
        double step;    ///< degrees
    };

    std::size_t periodOf(std::size_t sample) const;
    Period at(std::size_t period) const;
    bool isBehind(std::size_t sample, std::size_t period) const {
        return period + 2 < pulses_.size() && static_cast<double>(sample) >= pulses_[period + 1];
    }

    std::vector<double> pulses_;
    std::size_t pulsesPerTurn_;
    double step_;  ///< degrees from pulse to pulse
    std::size_t sampleCount_;
    std::vector<std::uint32_t> guide_;  ///< the period at every so many samples
};

}  // namespace Rotavue::Workbench
