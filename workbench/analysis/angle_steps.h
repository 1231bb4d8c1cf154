#pragma once

#include <complex>
#include <vector>

#include "workbench/analysis/turned_samples.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// A recording by the shaft's angle: value k is the mean of x + jy over the step from k / perTurn
/// to (k + 1) / perTurn turns behind `firstTurn`.
struct AngleSteps {
    double firstTurn = 0.0;
    int perTurn = 64;
    std::vector<std::complex<double>> values;

    /// The place of a turn among the values, which stand for the middles of their steps.
    double placeOf(double turn) const { return (turn - firstTurn) * perTurn - 0.5; }
};

/// Averages the samples, which straight lines join also across gaps, over as many whole steps as
/// the samples cover. Before the first and behind the last value free of gaps, that value holds.
/// Empty if there is none, or no whole step. Throws ReadingCancelled.
AngleSteps averageBySteps(const Recording& recording, const TurnedSamples& samples, int perTurn,
                          const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
