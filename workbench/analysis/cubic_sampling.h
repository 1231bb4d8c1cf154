#pragma once

#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// The value between samples, at a place counted in samples from 0 to the last: on the cubic
/// through the four samples around it (Lagrange's formula), which at 20 samples per period misses a
/// sine by 0.02 % where a straight line misses it by 1.2 %. Next to an end the first or last four
/// serve, and fewer than four samples are joined by straight lines. NaN if one of the samples is.
double cubicAt(SampleView samples, double place);

}  // namespace Rotavue::Workbench
