#pragma once

#include "benchmarks/benchmark_host.h"

namespace Rotavue::Benchmarks {

/// Makes the host calls that one draw of the orbit makes for its points, in the same order and in
/// the same form, and nothing else: what the host and the calls themselves cost.
double bareLoop(BenchmarkHost& host, std::int32_t points, Mode mode);

}  // namespace Rotavue::Benchmarks
