#include "workbench/recording/pulse_angle.h"

#include <utility>

#include "workbench/recording/degrees.h"

namespace Rotavue::Workbench {
namespace {

constexpr std::size_t GuideStep = 64;

}  // namespace

PulseAngle::PulseAngle(std::vector<double> pulses, int pulsesPerTurn, std::size_t sampleCount)
    : pulses_(std::move(pulses)),
      pulsesPerTurn_(static_cast<std::size_t>(pulsesPerTurn)),
      step_(DegreesPerTurn / pulsesPerTurn),
      sampleCount_(sampleCount) {
    guide_.reserve(sampleCount / GuideStep + 1);
    std::size_t period = 0;
    for (std::size_t sample = 0; sample < sampleCount; sample += GuideStep) {
        while (isBehind(sample, period))
            ++period;
        guide_.push_back(static_cast<std::uint32_t>(period));
    }
}

std::size_t PulseAngle::memoryUse() const {
    return pulses_.capacity() * sizeof(double) + guide_.capacity() * sizeof(std::uint32_t);
}

void PulseAngle::copyTo(std::size_t first, std::span<double> angles) const {
    if (angles.empty()) return;
    std::size_t period = periodOf(first);
    for (std::size_t i = 0; i < angles.size(); ++period) {
        const Period of = at(period);
        for (; i < angles.size() && !isBehind(first + i, period); ++i)
            angles[i] = of.angleAt(first + i);
    }
}

std::size_t PulseAngle::periodOf(std::size_t sample) const {
    std::size_t period = guide_[sample / GuideStep];
    while (isBehind(sample, period))
        ++period;
    return period;
}

PulseAngle::Period PulseAngle::at(std::size_t period) const {
    const double begin = pulses_[period];
    const auto pulse = static_cast<double>(period % pulsesPerTurn_);
    return {begin, pulses_[period + 1] - begin, pulse, step_};
}

double PulseAngle::Period::angleAt(std::size_t sample) const {
    return wrappedDegrees((pulse + (static_cast<double>(sample) - begin) / length) * step);
}

}  // namespace Rotavue::Workbench
