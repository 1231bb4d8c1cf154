#pragma once

#include "plugin/framework/host/host_error.h"
#include "plugin/framework/host/status.h"

#include <cstdint>

namespace Meridax::VisualControls::Rotavue {

/// The host's sample numbers are 32 bits wide, and so is the arithmetic on them: a running counter
/// turns over, and a difference across the turn comes out right. Sums are therefore formed in 64
/// bits and cut here.
constexpr std::int32_t cutTo32(std::int64_t value) {
    return static_cast<std::int32_t>(value);
}

/// The 32-bit quotient, truncated toward zero. A host that reports a divisor of 0 gets 0x80070057.
constexpr std::int32_t quotient32(std::int32_t dividend, std::int32_t divisor) {
    if (divisor == 0) throw Host::HostError(Host::Status::InvalidArgument);
    if (divisor == -1) return cutTo32(-std::int64_t{dividend});
    return dividend / divisor;
}

}  // namespace Meridax::VisualControls::Rotavue
