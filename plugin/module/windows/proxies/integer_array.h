#pragma once

#include "plugin/framework/host/host_error.h"
#include "plugin/module/windows/platform_headers.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace Meridax::Host::Binary {

/// An array of `VT_I4` with one dimension from lower bound 0.
class IntegerArray {
public:
    /// A copy of the numbers. Raises `HostError` 0x8007000E where there is no memory for it.
    explicit IntegerArray(const std::vector<std::int32_t>& numbers) {
        if (numbers.size() <= std::numeric_limits<LONG>::max())
            array_ = ::SafeArrayCreateVector(VT_I4, 0, static_cast<ULONG>(numbers.size()));
        if (array_ == nullptr) throw HostError(Status::OutOfMemory);
        std::copy(numbers.begin(), numbers.end(), static_cast<LONG*>(array_->pvData));
    }

    IntegerArray(const IntegerArray&) = delete;
    IntegerArray& operator=(const IntegerArray&) = delete;
    ~IntegerArray() { ::SafeArrayDestroy(array_); }

    SAFEARRAY* get() const noexcept { return array_; }

private:
    SAFEARRAY* array_ = nullptr;
};

}  // namespace Meridax::Host::Binary
