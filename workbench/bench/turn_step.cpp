#include "workbench/bench/turn_step.h"

#include "workbench/bench/plane.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Rotavue::Workbench {

namespace {

/// The first sample at or behind a time, as a time.
double sampleBehind(double time, double rate) {
    constexpr double Rounding = 1e-6;  // of a sample
    return std::ceil(time * rate - Rounding) / rate;
}

/// A step without a keyphasor, in s.
double plainStep(const Plane& plane) {
    const double shown = plane.span().milliseconds / 1000.0;
    return shown > 0.0 ? shown : plane.shown().duration() / 100.0;
}

/// The whole turn that the cursor stands on or, when it stands between two, the one that it comes
/// to first on the way of the step is one step away.
double turnBehind(const ShaftRun& run, double from, double rate, int turns) {
    const double halfSample = 0.5 / rate;
    const double turn = turns > 0 ? std::floor(run.turnAt(from + halfSample))
                                  : std::ceil(run.turnAt(from - 1.0 / rate - halfSample));
    return turn + turns;
}

/// The run that the step leads to; null where it leads out of all of them.
const ShaftRun* runOf(const std::vector<ShaftRun>& runs, double from, double rate, int turns) {
    const double sample = 1.0 / rate;
    if (turns > 0) {
        for (const ShaftRun& run : runs)
            if (run.end() > from) return &run;
        return nullptr;
    }
    for (auto run = runs.rbegin(); run != runs.rend(); ++run)
        if (run->begin() < from - sample) return &*run;
    return nullptr;
}

}  // namespace

double steppedTime(const Plane& plane, double from, int turns) {
    const double rate = plane.shown().recording.sampleRate;
    const ShaftRun* run = runOf(plane.shown().track.runs(), from, rate, turns);
    if (run == nullptr) return from + turns * plainStep(plane);
    const double turn =
        std::clamp(turnBehind(*run, from, rate, turns), 0.0, static_cast<double>(run->turnCount()));
    return sampleBehind(run->timeOf(turn), rate);
}

}  // namespace Rotavue::Workbench
