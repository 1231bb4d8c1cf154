#include "tests/support/memory_meter.h"

#include <malloc.h>

#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>

namespace Meridax::Tests::MemoryMeter {

namespace {

constexpr std::int64_t Never = std::numeric_limits<std::int64_t>::max();

std::int64_t livingNow = 0;
std::int64_t bytesNow = 0;
std::int64_t triedSoFar = 0;
std::int64_t firstFailure = Never;  // both by the number of the allocation
std::int64_t lastFailure = Never;

// As each platform's library calls it.
std::int64_t sizeOf(void* memory) noexcept {
#ifdef _WIN32
    return static_cast<std::int64_t>(::_msize(memory));
#else
    return static_cast<std::int64_t>(::malloc_usable_size(memory));
#endif
}

void* allocate(std::size_t size) noexcept {
    ++triedSoFar;
    if (triedSoFar >= firstFailure && triedSoFar <= lastFailure) return nullptr;
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) return nullptr;
    ++livingNow;
    bytesNow += sizeOf(memory);
    return memory;
}

void release(void* memory) noexcept {
    if (memory == nullptr) return;
    --livingNow;
    bytesNow -= sizeOf(memory);
    std::free(memory);
}

}  // namespace

std::int64_t living() noexcept {
    return livingNow;
}

std::int64_t livingBytes() noexcept {
    return bytesNow;
}

std::int64_t tried() noexcept {
    return triedSoFar;
}

void failAt(std::int64_t n) noexcept {
    firstFailure = triedSoFar + n;
    lastFailure = firstFailure;
}

void failFrom(std::int64_t n) noexcept {
    firstFailure = triedSoFar + n;
    lastFailure = Never;
}

bool failNoMore() noexcept {
    const bool came = triedSoFar >= firstFailure;
    firstFailure = Never;
    lastFailure = Never;
    return came;
}

}  // namespace Meridax::Tests::MemoryMeter

// The whole test program, its libraries and modules included, takes its memory here.
void* operator new(std::size_t size) {
    void* const memory = Meridax::Tests::MemoryMeter::allocate(size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Meridax::Tests::MemoryMeter::allocate(size);
}

void operator delete(void* memory) noexcept {
    Meridax::Tests::MemoryMeter::release(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    Meridax::Tests::MemoryMeter::release(memory);
}
