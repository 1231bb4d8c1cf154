#pragma once

#include <atomic>
#include <cstddef>
#include <future>
#include <span>
#include <vector>

namespace Rotavue::Workbench {

/// Gets the reserved memory of columns from the system while another thread already fills them:
/// page by page, as it is written, that takes a third of the time in which a large WAV file is
/// read. It comes in small pages and slice by slice: for one call that takes all, or looks for
/// large pages, the other threads of the process wait.
class MemoryAhead {
public:
    /// Begins, where there is enough of it to be worth a thread. The columns hold no values yet;
    /// they may be filled meanwhile, and must not reserve more while this lives.
    template <typename Value>
    explicit MemoryAhead(std::span<std::vector<Value>> columns) {
        std::vector<std::span<std::byte>> memory;
        for (std::vector<Value>& column : columns)
            memory.push_back(
                {reinterpret_cast<std::byte*>(column.data()), column.capacity() * sizeof(Value)});
        begin(memory);
    }

    /// Ends with the slice that is being taken.
    ~MemoryAhead();
    MemoryAhead(const MemoryAhead&) = delete;
    MemoryAhead& operator=(const MemoryAhead&) = delete;

    /// Waits for the end and tells how many bytes were asked for; 0 where the system takes no such
    /// wish.
    std::size_t taken();

    static constexpr std::size_t Slice = 1U << 20U;       ///< bytes
    static constexpr std::size_t LeastSize = 16 * Slice;  ///< of a column

private:
    using Stretch = std::span<std::byte>;

    void begin(const std::vector<Stretch>& columns);
    std::size_t take(const std::vector<Stretch>& stretches);

    std::atomic<bool> stopped_ = false;
    std::future<std::size_t> done_;  // last: the thread begins with it
};

}  // namespace Rotavue::Workbench
