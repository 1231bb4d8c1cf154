#pragma once

#include <optional>

#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// Where values lie that hardly move for how far they are from 0, as the volts of a gap do.
struct FarMean {
    double mean;
    double times;  ///< how many times their peak-to-peak that is, 5 or more
};

/// Nothing for values near 0, and for such as stand still. Gaps are left out.
std::optional<FarMean> farMean(SampleView values);

/// The value with three significant digits, as much as a person would enter for such a mean.
double inThreeDigits(double value);

}  // namespace Rotavue::Workbench
