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

double quantile(std::span<const double> values, double part) {
    const double place = part * static_cast<double>(values.size() - 1);
    return valueOfRank(values, static_cast<std::size_t>(std::lround(place)));
}

Swing swingOf(std::span<const double> volts) {
    if (volts.empty()) return {};
    const Swing inner{quantile(volts, LowQuantile), quantile(volts, HighQuantile)};
    const auto [least, most] = std::minmax_element(volts.begin(), volts.end());
    const Swing whole{*least, *most};
    return inner.size() < LeastQuantileSpan * whole.size() ? whole : inner;
}

// Where the straight line from `before` to `after` passes `level`, 0 to 1.
double crossing(double before, double after, double level) {
    return (level - before) / (after - before);
}

}  // namespace

PulseRule pulseRuleFor(std::span<const double> volts, const KeyphasorOptions& options) {
    const Swing swing = swingOf(volts);
    return {options.edge.value_or(PulseEdge::Rising),
            options.level.value_or(0.5 * (swing.low + swing.high)),
            options.hysteresis.value_or(HysteresisPart * swing.size())};
}

std::vector<double> findPulses(std::span<const double> volts, const PulseRule& rule) {
    // A falling edge is a rising one of the signal turned over.
    const double sign = rule.edge == PulseEdge::Rising ? 1.0 : -1.0;
    const double level = sign * rule.level;
    std::vector<double> pulses;
    bool armed = false;
    for (std::size_t i = 0; i < volts.size(); ++i) {
        const double value = sign * volts[i];
        if (armed && value >= level) {
            const double part = crossing(sign * volts[i - 1], value, level);
            pulses.push_back(static_cast<double>(i - 1) + part);
            armed = false;
        }
        if (value < level - rule.hysteresis) armed = true;
    }
    return pulses;
}

void angleFromPulses(std::span<const double> pulses, int pulsesPerTurn, std::span<double> angle) {
    const auto perTurn = static_cast<std::size_t>(pulsesPerTurn);
    const double step = DegreesPerTurn / pulsesPerTurn;
    std::size_t i = 0;
    for (std::size_t k = 0; k + 1 < pulses.size(); ++k) {
        const bool last = k + 2 == pulses.size();
        const double period = pulses[k + 1] - pulses[k];
        const auto first = static_cast<double>(k % perTurn);
        for (; i < angle.size() && (last || static_cast<double>(i) < pulses[k + 1]); ++i) {
            const double part = (static_cast<double>(i) - pulses[k]) / period;
            angle[i] = wrappedDegrees((first + part) * step);
        }
    }
}

double speedFromPulses(std::span<const double> pulses, double sampleRate, int pulsesPerTurn) {
    const double turns = static_cast<double>(pulses.size() - 1) / pulsesPerTurn;
    const double seconds = (pulses.back() - pulses.front()) / sampleRate;
    return turns / seconds * SecondsPerMinute;
}

std::vector<double> angleFromSpeed(std::span<const double> rpm, double sampleRate) {
    std::vector<double> angle(rpm.size());
    for (std::size_t i = 1; i < rpm.size(); ++i) {
        const double mean = 0.5 * (rpm[i - 1] + rpm[i]);
        angle[i] = wrappedDegrees(angle[i - 1] + mean * DegreesPerSecondAtOneRpm / sampleRate);
    }
    return angle;
}

double turnsOf(std::span<const double> degrees) {
    double turns = 0.0;
    for (std::size_t i = 1; i < degrees.size(); ++i) {
        const double step = degrees[i] - degrees[i - 1];
        const bool falls = std::abs(step) > 0.5 * DegreesPerTurn;
        turns += (falls ? std::remainder(step, DegreesPerTurn) : step) / DegreesPerTurn;
    }
    return turns;
}

KeyphasorKind kindFromValues(std::span<const double> values) {
    if (values.empty()) return KeyphasorKind::Volts;
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    const double span = *most - *least;
    if (span < 300.0 || span > 361.0) return KeyphasorKind::Volts;
    const double middle = (quantile(values, 0.5) - *least) / span;
    return middle >= 0.25 && middle <= 0.75 ? KeyphasorKind::Ramp : KeyphasorKind::Volts;
}

}  // namespace Rotavue::Workbench
