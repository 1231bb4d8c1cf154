#include "workbench/recording/memory_ahead.h"

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

#include <algorithm>
#include <cstdint>

namespace Rotavue::Workbench {
namespace {

constexpr std::size_t PageSize = 4096;

// False where the system doesn't know the wish or has no memory; then pages come as they are
// written.
bool takePages([[maybe_unused]] std::byte* begin, [[maybe_unused]] std::size_t size) {
#ifdef MADV_POPULATE_WRITE
    return ::madvise(begin, size, MADV_POPULATE_WRITE) == 0;
#else
    return false;
#endif
}

}  // namespace

// Of each column its whole pages.
void MemoryAhead::begin(const std::vector<Stretch>& columns) {
    std::vector<Stretch> stretches;
    for (const Stretch& column : columns) {
        if (column.size() < LeastSize) continue;
        const std::size_t before = (0 - reinterpret_cast<std::uintptr_t>(column.data())) % PageSize;
        stretches.push_back(column.subspan(before, (column.size() - before) / PageSize * PageSize));
    }
    if (stretches.empty()) return;
    done_ = std::async(std::launch::async | std::launch::deferred,
                       [this, stretches] { return take(stretches); });
}

MemoryAhead::~MemoryAhead() {
    stopped_ = true;
}

std::size_t MemoryAhead::taken() {
    return done_.valid() ? done_.get() : 0;
}

// A slice of each column in turn, as they are filled.
std::size_t MemoryAhead::take(const std::vector<Stretch>& stretches) {
    std::size_t sum = 0;
    for (std::size_t place = 0; !stopped_; place += Slice) {
        const std::size_t before = sum;
        for (const Stretch& stretch : stretches) {
            if (place >= stretch.size()) continue;
            const std::size_t size = std::min(Slice, stretch.size() - place);
            if (!takePages(stretch.data() + place, size)) return sum;
            sum += size;
        }
        if (sum == before) break;
    }
    return sum;
}

}  // namespace Rotavue::Workbench
