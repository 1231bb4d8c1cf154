#include "tests/faults/allocation_meter.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace Rotavue::HostKit::AllocationMeter {

namespace {

std::int64_t livingNow = 0;
std::int64_t triedSoFar = 0;
std::int64_t untilFailure = 0;

bool fails() {
    ++triedSoFar;
    return untilFailure > 0 && --untilFailure == 0;
}

void* allocate(std::size_t size) noexcept {
    void* const memory = fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory != nullptr) ++livingNow;
    return memory;
}

void release(void* memory) noexcept {
    if (memory == nullptr) return;
    --livingNow;
    std::free(memory);
}

}  // namespace

std::int64_t living() {
    return livingNow;
}

std::int64_t tried() {
    return triedSoFar;
}

void failAt(std::int64_t n) {
    untilFailure = n;
}

bool failsLater() {
    return untilFailure > 0;
}

}  // namespace Rotavue::HostKit::AllocationMeter

void* operator new(std::size_t size) {
    void* const memory = Rotavue::HostKit::AllocationMeter::allocate(size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Rotavue::HostKit::AllocationMeter::allocate(size);
}

void operator delete(void* memory) noexcept {
    Rotavue::HostKit::AllocationMeter::release(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    Rotavue::HostKit::AllocationMeter::release(memory);
}
