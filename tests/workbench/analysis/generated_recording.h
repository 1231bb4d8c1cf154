#pragma once

#include <cmath>
#include <functional>
#include <random>
#include <vector>

#include "workbench/analysis/field_vector.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

// A rotor whose truth is known: its speed changes linearly, and each probe sees a mean, orders of
// the shaft's angle and noise.
struct GeneratedRotor {
    double sampleRate = 10'000.0;
    double duration = 1.0;     // s
    double firstSpeed = 3000;  // rpm at the first sample
    double lastSpeed = 3000;   // rpm at the end
    double firstTurn = 0.25;   // turns at the first sample
    std::vector<OrderVectors> orders = {};
    double xMean = 0.0;
    double yMean = 0.0;
    double noise = 0.0;  // standard deviation

    double turnsAt(double time) const {
        const double first = firstSpeed / 60.0;
        const double last = lastSpeed / 60.0;
        return firstTurn + first * time + 0.5 * (last - first) / duration * time * time;
    }

    double speedAt(double time) const {
        return firstSpeed + (lastSpeed - firstSpeed) * time / duration;
    }
};

inline Recording generate(const GeneratedRotor& rotor) {
    Recording recording;
    recording.sampleRate = rotor.sampleRate;
    recording.keyphasorKind = KeyphasorKind::Ramp;
    recording.machine.unit = "um";
    std::mt19937_64 random(1);
    std::normal_distribution<double> noise(0.0, 1.0);
    const auto count = static_cast<std::size_t>(rotor.duration * rotor.sampleRate + 0.5);
    for (std::size_t i = 0; i < count; ++i) {
        const double turns = rotor.turnsAt(static_cast<double>(i) / rotor.sampleRate);
        double x = rotor.xMean;
        double y = rotor.yMean;
        for (const OrderVectors& order : rotor.orders) {
            x += order.x.valueAt(order.order, turns);
            y += order.y.valueAt(order.order, turns);
        }
        recording.x.edit().push_back(x + rotor.noise * noise(random));
        recording.y.edit().push_back(y + rotor.noise * noise(random));
        recording.angle.edit().push_back(360.0 * (turns - std::floor(turns)));
    }
    return recording;
}

// The same recording as if it had been made without a keyphasor.
inline Recording withoutKeyphasor(Recording recording) {
    recording.angle.edit().clear();
    recording.keyphasorKind = KeyphasorKind::None;
    return recording;
}

// How far two angles in degrees are apart, 0 to 180.
inline double degreesApart(double a, double b) {
    return std::abs(std::remainder(a - b, 360.0));
}

}  // namespace Rotavue::Workbench
