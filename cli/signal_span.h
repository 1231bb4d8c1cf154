#pragma once

#include <cstddef>
#include "workbench/recording/samples.h"

namespace Rotavue::Cli {

/// What the numbers of one probe span; gaps do not count.
struct SignalSpan {
    double least = 0.0;
    double most = 0.0;
    double mean = 0.0;
    std::size_t gaps = 0;

    /// Of values that are not all gaps.
    static SignalSpan of(Workbench::SampleView values);
};

}  // namespace Rotavue::Cli
