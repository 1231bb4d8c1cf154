#pragma once

#include <cstddef>
#include <vector>

#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// How many indices have no value in x, in y or in both. Both have the same size.
std::size_t countGaps(SampleView x, SampleView y);

/// What a host channel is given where the recording has a gap: the last pair of values that both
/// probes had is held until both have one again, and a gap at the very beginning takes the first
/// such pair. The shaft so stands still during a gap, and the orbit goes on with one straight line;
/// no invented point widens its extent. Both vectors have the same size, and at least one index has
/// a value in both, as in every `Recording`.
void holdGaps(std::vector<double>& x, std::vector<double>& y);

}  // namespace Rotavue::Workbench
