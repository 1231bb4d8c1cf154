#include "workbench/analysis/turn_window.h"

#include <algorithm>
#include <cmath>

#include "workbench/recording/keyphasor.h"

namespace Rotavue::Workbench {
namespace {

constexpr double HalfTurn = 180.0;

// Searches back from `from` for the sample behind which the angle falls back; the oldest sample
// where there is none.
struct Mark {
    std::size_t sample = 0;
    bool found = false;
};

Mark markBefore(SampleView angle, std::size_t from) {
    double behind = angle[from];
    for (std::size_t i = from; i > 0; --i) {
        const double before = angle[i - 1];
        if (std::abs(behind - before) > HalfTurn) return {i - 1, true};
        behind = before;
    }
    return {};
}

}  // namespace

TurnWindow turnWindow(SampleView angle, double sampleRate, std::size_t position, int revolutions) {
    const std::size_t newest = std::min(position, angle.size() - 1);
    const Mark begin = markBefore(angle, newest);
    TurnWindow window{.first = begin.sample, .last = begin.found ? begin.sample : newest};
    for (Mark mark = begin; mark.found && window.turns < revolutions;) {
        mark = markBefore(angle, mark.sample);
        window.first = mark.sample;
        if (mark.found) ++window.turns;
    }
    window.speed = meanSpeed(angle, sampleRate, window.first, window.last);
    return window;
}

double meanSpeed(SampleView angle, double sampleRate, std::size_t first, std::size_t last) {
    if (last <= first) return 0.0;
    const double minutes = static_cast<double>(last - first) / sampleRate / 60.0;
    return std::abs(turnsOf(angle.part(first, last - first + 1))) / minutes;
}

}  // namespace Rotavue::Workbench
