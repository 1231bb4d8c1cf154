#pragma once

#include <complex>
#include <vector>

#include "workbench/recording/reading_watch.h"

namespace Rotavue::Workbench {

enum class TransformWay { Forward, Inverse };

/// The discrete Fourier transform of a signal, without a factor either way, in pieces of a few
/// milliseconds: between them it can be cancelled. The signal's length has no other factors than 2,
/// 3 and 5. Throws ReadingCancelled.
std::vector<std::complex<double>> longTransform(const std::vector<std::complex<double>>& signal,
                                                TransformWay way, const ReadingProgress& progress);

}  // namespace Rotavue::Workbench
