#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

namespace Rotavue::Fuzz {

/// The bytes of one input, taken from the front if nothing else is said; behind the last one all
/// are 0.
class ByteSource {
public:
    explicit ByteSource(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    bool empty() const { return bytes_.empty(); }

    std::uint8_t byte() {
        if (bytes_.empty()) return 0;
        const std::uint8_t first = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return first;
    }

    /// Taken from the end.
    std::uint8_t last() {
        if (bytes_.empty()) return 0;
        const std::uint8_t back = bytes_.back();
        bytes_ = bytes_.first(bytes_.size() - 1);
        return back;
    }

    /// One of 0 to `end` - 1; `end` is 1 to 256.
    std::size_t below(std::size_t end) { return byte() % end; }

    bool flag() { return (byte() & 1U) != 0; }

    /// A number from its own bytes.
    template <class Number>
    Number raw() {
        unsigned char bytes[sizeof(Number)];
        for (unsigned char& one : bytes)
            one = byte();
        Number number;
        std::memcpy(&number, bytes, sizeof number);
        return number;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

}  // namespace Rotavue::Fuzz
