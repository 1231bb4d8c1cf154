#include "workbench/analysis/slow_roll.h"

#include <array>
#include <numeric>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/averaged_orbit.h"
#include "workbench/analysis/harmonics.h"
#include "workbench/analysis/short_text.h"

namespace Rotavue::Workbench {
namespace {

constexpr std::array Orders{1.0, 2.0};

std::vector<double> withoutMean(std::vector<double> values) {
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    for (double& value : values)
        value -= sum / static_cast<double>(values.size());
    return values;
}

void takeFacts(const MachineFacts& machine, SlowRoll& slowRoll) {
    slowRoll.unit = machine.unit;
    slowRoll.point = machine.point;
    slowRoll.xAngle = machine.xAngle;
    slowRoll.yAngle = machine.yAngle;
    slowRoll.tachoAngle = machine.tachoAngle;
    slowRoll.rotation = machine.rotation;
}

void takeForms(const Recording& recording, const ShaftTrack& track, const AverageOptions& options,
               const ReadingProgress& progress, SlowRoll& slowRoll) {
    const Harmonics harmonics =
        findHarmonics(recording, track, Orders, options.span, progress.between(0.0, 0.5));
    slowRoll.first = harmonics.orders[0];
    slowRoll.second = harmonics.orders[1];
    AveragedOrbit orbit = averageOrbit(recording, track, options, progress.between(0.5, 1.0));
    slowRoll.x = withoutMean(std::move(orbit.x));
    slowRoll.y = withoutMean(std::move(orbit.y));
    slowRoll.speed = orbit.speed;
    slowRoll.turns = orbit.averages;
}

void noteDoubts(const Recording& recording, SlowRoll& slowRoll) {
    if (slowRoll.speed > FastestSlowRoll)
        slowRoll.notes.push_back("run-out taken at " + shortText(slowRoll.speed) + " rpm: above " +
                                 shortText(FastestSlowRoll) +
                                 " rpm the shaft's own motion is part of it");
    if (recording.coupling == Coupling::Ac)
        slowRoll.notes.emplace_back(
            "run-out taken from an AC-coupled recording: where the coupling was in the "
            "instrument, it turns and weakens what is as slow as this");
}

}  // namespace

SlowRoll takeSlowRoll(const Recording& recording, const ShaftTrack& track, const TimeSpan& span,
                      int pointsPerTurn, const ReadingProgress& progress) {
    track.wholeTurns(span, "the run-out");
    SlowRoll slowRoll;
    slowRoll.file = recording.file;
    slowRoll.hasMark = recording.hasMark();
    takeFacts(recording.machine, slowRoll);
    try {
        takeForms(recording, track, {.span = span, .pointsPerTurn = pointsPerTurn}, progress,
                  slowRoll);
    } catch (const AnalysisError& error) {
        throw AnalysisError(std::string("the run-out cannot be taken: ") + error.what());
    }
    noteDoubts(recording, slowRoll);
    return slowRoll;
}

}  // namespace Rotavue::Workbench
