#pragma once

#include <cstddef>

#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// The value that would stand at `rank`, counted from 0, if the values were sorted. Nothing is
/// copied, whatever the number of values; there are more of them than `rank`, and none is a NaN.
double valueOfRank(SampleView values, std::size_t rank);

}  // namespace Rotavue::Workbench
