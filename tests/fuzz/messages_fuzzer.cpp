#include "tests/fuzz/hostile_host.h"

#include <cstdlib>

/// Argument lists and the order of messages. Whatever the host does, nothing of it stays held.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Rotavue::Fuzz::HostileHost host(Rotavue::Fuzz::ByteSource({data, size}));
    host.run();
    if (host.leftBehind() != 0) std::abort();
    return 0;
}
