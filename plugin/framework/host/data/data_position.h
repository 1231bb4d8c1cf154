#pragma once

#include <cstdint>

namespace Meridax::Host {

/// A place in the host's stored data. With a block size of s samples its linear sample number is
/// block * s + offset, computed in 64 bits.
struct DataPosition {
    std::int32_t block = 0;   ///< number of a storage block
    std::int32_t offset = 0;  ///< sample within that block

    /// The linear sample number for blocks of `blockSize` samples.
    constexpr std::int64_t linear(std::int32_t blockSize) const {
        return static_cast<std::int64_t>(block) * blockSize + offset;
    }

    bool operator==(const DataPosition&) const = default;
};

}  // namespace Meridax::Host
