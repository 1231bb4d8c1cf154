#include "examples/example.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "examples/noise.h"

namespace Rotavue::Examples {
namespace {

constexpr double ShaftVolts = -6.0;   // what the keyphasor's driver gives over the plain shaft
constexpr double NotchVolts = -14.0;  // further away
constexpr double KeyVolts = -2.0;     // nearer
constexpr double FlankWidth = 20.0;   // degrees
constexpr double MarkWidth = 70.0;    // degrees, from the middle of one flank to that of the other
constexpr double KeyphasorNoise = 0.02;  // V
constexpr double StartAngle = 40.0;      // degrees since the mark, at the first sample

// 0 beside the mark, 1 on it, straight in between.
double markShape(double shaftDegrees) {
    const double fromMiddle = std::remainder(shaftDegrees - 0.5 * MarkWidth, 360.0);
    const double insideFlank = 0.5 * (MarkWidth + FlankWidth) - std::abs(fromMiddle);
    return std::clamp(insideFlank / FlankWidth, 0.0, 1.0);
}

double keyphasorAt(const Example& example, double shaftAngle, Noise& noise) {
    const double angle = degrees(shaftAngle);
    if (example.keyphasor == KeyphasorSignal::Ramp)
        return angle - 360.0 * std::floor(angle / 360.0);
    const bool notch = example.keyphasor == KeyphasorSignal::NotchVolts;
    const double depth = (notch ? NotchVolts : KeyVolts) - ShaftVolts;
    return ShaftVolts + depth * markShape(angle) + noise.next(KeyphasorNoise);
}

Position shaftCentre(const Example& example, double time, double shaftAngle) {
    Position centre = positionOf(example.whirls, shaftAngle, example.sense);
    if (!example.rotor) return centre;
    return centre + positionOf(*example.rotor, speedAt(example, time), shaftAngle, example.sense);
}

double probeReading(const Example& example, double probeAngle, Position centre, double shaftAngle) {
    const double place = degrees(shaftAngle) + degreesBehindMark(example, probeAngle);
    return readingOf(centre, probeAngle) + heightAt(example.runOut, place);
}

}  // namespace

std::size_t sampleCountOf(const Example& example) {
    return static_cast<std::size_t>(std::lround(example.rate * example.seconds));
}

double shaftAngleAt(const Example& example, double time) {
    const double slope = (example.endRpm - example.startRpm) / example.seconds;
    const double turns = (example.startRpm + 0.5 * slope * time) * time / 60.0;
    return 2.0 * std::numbers::pi * turns + radians(StartAngle);
}

double speedAt(const Example& example, double time) {
    return example.startRpm + (example.endRpm - example.startRpm) * time / example.seconds;
}

double degreesBehindMark(const Example& example, double probeAngle) {
    const double clockwise = probeAngle - example.probes.keyphasor;
    return example.sense == Sense::CounterClockwise ? clockwise : -clockwise;
}

Samples makeSamples(const Example& example, std::uint64_t seed) {
    Noise noise(seed);
    Samples samples;
    for (std::size_t i = 0; i < sampleCountOf(example); ++i) {
        const double time = static_cast<double>(i) / example.rate;
        const double angle = shaftAngleAt(example, time);
        const Position centre = shaftCentre(example, time, angle);
        const double x = probeReading(example, example.probes.x, centre, angle);
        const double y = probeReading(example, example.probes.y, centre, angle);
        samples.x.push_back(x + noise.next(example.noise));
        samples.y.push_back(y + noise.next(example.noise));
        samples.keyphasor.push_back(keyphasorAt(example, angle, noise));
    }
    return samples;
}

}  // namespace Rotavue::Examples
