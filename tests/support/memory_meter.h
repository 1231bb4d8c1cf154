#pragma once

#include <cstdint>

/// Counts what this program and the modules that it loads take from the heap with `operator new`,
/// and lets it fail. For one thread.
namespace Meridax::Tests::MemoryMeter {

/// Allocations that live now.
std::int64_t living() noexcept;

/// The bytes that they hold.
std::int64_t livingBytes() noexcept;

/// Allocations that were tried since the program started.
std::int64_t tried() noexcept;

/// The n-th allocation from here on (1 is the next one) raises `std::bad_alloc`, once.
void failAt(std::int64_t n) noexcept;

/// The n-th allocation from here on and every one after it raise `std::bad_alloc`.
void failFrom(std::int64_t n) noexcept;

/// Takes back what was asked for. True when a failure had come.
bool failNoMore() noexcept;

}  // namespace Meridax::Tests::MemoryMeter
