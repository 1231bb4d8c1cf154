#include "tests/plugin/setup_document/exhausted_memory.h"

#include <cstdlib>
#include <limits>

namespace {

constexpr std::size_t NoEnd = std::numeric_limits<std::size_t>::max();

std::size_t left = NoEnd;

}  // namespace

// The whole test program takes its memory here.
void* operator new(std::size_t size) {
    if (left == 0) throw std::bad_alloc();
    if (left != NoEnd) --left;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace Meridax::Tests {

ExhaustedMemory::ExhaustedMemory(std::size_t granted) noexcept {
    left = granted;
}

ExhaustedMemory::~ExhaustedMemory() {
    left = NoEnd;
}

}  // namespace Meridax::Tests
