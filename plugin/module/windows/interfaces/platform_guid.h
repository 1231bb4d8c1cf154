#pragma once

#include "plugin/framework/host/guid.h"
#include "plugin/module/windows/platform_headers.h"

#include <bit>

namespace Meridax::Host::Binary {

/// The same 16 bytes under the platform's name and under ours.
constexpr GUID platformGuid(const Guid& identifier) noexcept {
    return std::bit_cast<GUID>(identifier);
}

constexpr Guid guidOf(const GUID& identifier) noexcept {
    return std::bit_cast<Guid>(identifier);
}

}  // namespace Meridax::Host::Binary
