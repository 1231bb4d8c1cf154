#include "workbench/recording/value_memory.h"

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

#include <cstdint>

namespace Rotavue::Workbench {
namespace {

constexpr std::size_t PageSize = 4096;
constexpr std::size_t LeastSize = 1U << 20U;  // for less it isn't worth a call

// Takes the pages that lie wholly inside, large ones where there are such. A system that doesn't
// know the advice gives them later.
void takePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#ifdef MADV_POPULATE_WRITE
    if (size < LeastSize) return;
    const std::size_t before = (0 - reinterpret_cast<std::uintptr_t>(memory)) % PageSize;
    char* const first = static_cast<char*>(memory) + before;
    const std::size_t length = (size - before) / PageSize * PageSize;
    ::madvise(first, length, MADV_HUGEPAGE);
    ::madvise(first, length, MADV_POPULATE_WRITE);
#endif
}

}  // namespace

void reserveValues(std::vector<double>& values, std::size_t count) {
    values.reserve(count);
    takePages(values.data(), values.capacity() * sizeof(double));
}

}  // namespace Rotavue::Workbench
