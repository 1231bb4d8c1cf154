#pragma once

#include <optional>
#include <string_view>

#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// What a time column says about the sampling.
struct TimeSteps {
    double start = 0.0;         ///< s, the first value
    double rate = 0.0;          ///< samples per second, from the mean step over the whole column
    double largestStray = 0.0;  ///< s, between a value and its place at equal steps
};

/// Reads the steps of a column that does not run backward; `secondsPerUnit` is what 1 stands for.
/// One step alone says little where the decimals of the time were cut, so all of them count; the
/// mean step is then known to twice the largest stray over the whole span, and at best to 1e-9. A
/// whole number of samples per second within that is taken for the rate, unless several are or the
/// steps are not even to 1 %. Nothing if there are fewer than two values or the time stands still.
std::optional<TimeSteps> readTimeSteps(SampleView time, double secondsPerUnit);

/// What 1 in a column of this unit stands for, in seconds: "s" or none, "ms", "us", "ns".
double secondsPerUnit(std::string_view unit);

}  // namespace Rotavue::Workbench
