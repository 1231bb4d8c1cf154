#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "workbench/recording/recording_options.h"
#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// When a keyphasor's volts count as a pulse. A pulse is where the signal crosses `level` in the
/// direction of the edge; after one, the next counts only once the signal has been further than
/// `hysteresis` on the other side of the level.
struct PulseRule {
    PulseEdge edge = PulseEdge::Rising;
    double level = 0.0;
    double hysteresis = 0.0;
};

/// The rule for a signal: what the options set, and for the rest a rising edge, the level halfway
/// between the 5 % and the 95 % quantile, a hysteresis of a quarter of the distance between them.
/// Pulses narrower than a twentieth of their period do not reach the quantiles: where these span
/// less than a quarter of the whole range, smallest and largest value take their place.
PulseRule pulseRuleFor(SampleView volts, const KeyphasorOptions& options);

/// The places of the pulses in samples, rising, each found by linear interpolation between the
/// sample before the crossing and the one behind it.
std::vector<double> findPulses(SampleView volts, const PulseRule& rule);

/// The mean speed in rpm from the first to the last of two or more pulses.
double speedFromPulses(std::span<const double> pulses, double sampleRate, int pulsesPerTurn);

/// The angle that a speed in rpm sums up to, in degrees from 0 to below 360, 0 at the first sample;
/// between samples the speed changes linearly.
std::vector<double> angleFromSpeed(SampleView rpm, double sampleRate);

/// The turns from the first sample to the last of an angle in degrees that moves by less than half
/// a turn from sample to sample; negative where it falls.
double turnsOf(SampleView degrees);

/// What a keyphasor column holds, judged by its values alone: a ramp if they span from 300 to 361
/// and their median lies in the middle half of that, else volts.
KeyphasorKind kindFromValues(SampleView values);

}  // namespace Rotavue::Workbench
