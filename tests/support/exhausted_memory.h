#pragma once

#include "plugin/framework/host/host_error.h"
#include "tests/support/memory_meter.h"

#include <cstddef>
#include <cstdint>
#include <new>

namespace Meridax::Tests {

/// For the length of a scope, memory is exhausted after so many more requests.
class ExhaustedMemory {
public:
    explicit ExhaustedMemory(std::size_t granted) noexcept {
        MemoryMeter::failFrom(static_cast<std::int64_t>(granted) + 1);
    }
    ExhaustedMemory(const ExhaustedMemory&) = delete;
    ExhaustedMemory& operator=(const ExhaustedMemory&) = delete;
    ~ExhaustedMemory() { MemoryMeter::failNoMore(); }
};

inline constexpr std::uint32_t Succeeded = 0;
inline constexpr std::uint32_t NoHostError = 1;  ///< `std::bad_alloc` left the call

/// How the call ends when memory is exhausted after so many requests: the status of `HostError`, or
/// one of the two above.
template <class Call>
std::uint32_t statusWithMemoryFor(std::size_t granted, Call call) {
    const ExhaustedMemory exhausted(granted);
    try {
        call();
    } catch (const Host::HostError& error) {
        return error.status;
    } catch (const std::bad_alloc&) {
        return NoHostError;
    }
    return Succeeded;
}

}  // namespace Meridax::Tests
