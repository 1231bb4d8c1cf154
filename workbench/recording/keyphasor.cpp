#include "workbench/recording/keyphasor.h"

#include <algorithm>
#include <cmath>

#include "workbench/recording/degrees.h"
#include "workbench/recording/ranked_value.h"

namespace Rotavue::Workbench {
namespace {

constexpr double LowQuantile = 0.05;
constexpr double HighQuantile = 0.95;
constexpr double LeastQuantileSpan = 0.25;  // of the whole range
constexpr double HysteresisPart = 0.25;     // of the swing
constexpr double SecondsPerMinute = 60.0;
constexpr double DegreesPerSecondAtOneRpm = DegreesPerTurn / SecondsPerMinute;

struct Swing {
    double low = 0.0;
    double high = 0.0;
    double size() const { return high - low; }
};

double quantile(SampleView values, double part) {
    const double place = part * static_cast<double>(values.size() - 1);
    return valueOfRank(values, static_cast<std::size_t>(std::lround(place)));
}

// Of one value or more.
Swing rangeOf(SampleView values) {
    Swing range{values[0], values[0]};
    values.forEach([&range](double value) {
        range.low = std::min(range.low, value);
        range.high = std::max(range.high, value);
    });
    return range;
}

Swing swingOf(SampleView volts) {
    if (volts.empty()) return {};
    const Swing inner{quantile(volts, LowQuantile), quantile(volts, HighQuantile)};
    const Swing whole = rangeOf(volts);
    return inner.size() < LeastQuantileSpan * whole.size() ? whole : inner;
}

// Where the straight line from `before` to `after` passes `level`, 0 to 1.
double crossing(double before, double after, double level) {
    return (level - before) / (after - before);
}

}  // namespace

PulseRule pulseRuleFor(SampleView volts, const KeyphasorOptions& options) {
    const Swing swing = swingOf(volts);
    return {options.edge.value_or(PulseEdge::Rising),
            options.level.value_or(0.5 * (swing.low + swing.high)),
            options.hysteresis.value_or(HysteresisPart * swing.size())};
}

std::vector<double> findPulses(SampleView volts, const PulseRule& rule) {
    // A falling edge is a rising one of the signal turned over.
    const double sign = rule.edge == PulseEdge::Rising ? 1.0 : -1.0;
    const double level = sign * rule.level;
    std::vector<double> pulses;
    bool armed = false;
    double before = 0.0;
    double place = -1.0;  // of the sample before
    volts.forEach([&](double volt) {
        const double value = sign * volt;
        if (armed && value >= level) {
            pulses.push_back(place + crossing(before, value, level));
            armed = false;
        }
        if (value < level - rule.hysteresis) armed = true;
        before = value;
        place += 1.0;
    });
    return pulses;
}

double speedFromPulses(std::span<const double> pulses, double sampleRate, int pulsesPerTurn) {
    const double turns = static_cast<double>(pulses.size() - 1) / pulsesPerTurn;
    const double seconds = (pulses.back() - pulses.front()) / sampleRate;
    return turns / seconds * SecondsPerMinute;
}

std::vector<double> angleFromSpeed(SampleView rpm, double sampleRate) {
    std::vector<double> angle(rpm.size());
    for (std::size_t i = 1; i < rpm.size(); ++i) {
        const double mean = 0.5 * (rpm[i - 1] + rpm[i]);
        angle[i] = wrappedDegrees(angle[i - 1] + mean * DegreesPerSecondAtOneRpm / sampleRate);
    }
    return angle;
}

double turnsOf(SampleView degrees) {
    if (degrees.empty()) return 0.0;
    double turns = 0.0;
    double before = degrees[0];
    degrees.forEach([&](double angle) {
        const double step = angle - before;
        const bool falls = std::abs(step) > 0.5 * DegreesPerTurn;
        turns += (falls ? std::remainder(step, DegreesPerTurn) : step) / DegreesPerTurn;
        before = angle;
    });
    return turns;
}

KeyphasorKind kindFromValues(SampleView values) {
    if (values.empty()) return KeyphasorKind::Volts;
    const Swing whole = rangeOf(values);
    const double span = whole.size();
    if (span < 300.0 || span > 361.0) return KeyphasorKind::Volts;
    const double middle = (quantile(values, 0.5) - whole.low) / span;
    return middle >= 0.25 && middle <= 0.75 ? KeyphasorKind::Ramp : KeyphasorKind::Volts;
}

}  // namespace Rotavue::Workbench
