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
bool takePages([[maybe_unused]] char* begin, [[maybe_unused]] std::size_t size) {
#ifdef MADV_POPULATE_WRITE
    return ::madvise(begin, size, MADV_POPULATE_WRITE) == 0;
#else
    return false;
#endif
}

}  // namespace

MemoryAhead::MemoryAhead(std::span<std::vector<double>> columns) {
    std::vector<Stretch> stretches;
    for (std::vector<double>& column : columns) {
        const std::size_t size = column.capacity() * sizeof(double);
        if (size < LeastSize) continue;
        char* const memory = reinterpret_cast<char*>(column.data());
        const std::size_t before = (0 - reinterpret_cast<std::uintptr_t>(memory)) % PageSize;
        stretches.push_back({memory + before, (size - before) / PageSize * PageSize});
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
            if (place >= stretch.size) continue;
            const std::size_t size = std::min(Slice, stretch.size - place);
            if (!takePages(stretch.begin + place, size)) return sum;
            sum += size;
        }
        if (sum == before) break;
    }
    return sum;
}

}  // namespace Rotavue::Workbench
