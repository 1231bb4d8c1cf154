#pragma once

#include <cstdint>

/// Counts what this program and the modules that it loads allocate with `operator new`, and lets
/// one allocation fail. For one thread.
namespace Rotavue::HostKit::AllocationMeter {

/// Allocations that live now.
std::int64_t living();

/// Allocations that were tried since the program started.
std::int64_t tried();

/// The n-th allocation from here on (1 is the next one) raises `std::bad_alloc`, once; 0 takes back
/// what was asked for.
void failAt(std::int64_t n);

/// True while the failure that was asked for has not come.
bool failsLater();

}  // namespace Rotavue::HostKit::AllocationMeter
