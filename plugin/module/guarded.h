#pragma once

#include "plugin/framework/host/status.h"

#include <cstdint>
#include <new>

namespace Meridax::VisualControls::Rotavue {

/// Runs what an entry point does and gives its status; a failure that has none becomes 0x8007000E
/// or 0x80004005.
template <class Operation>
std::int32_t guarded(Operation operation) noexcept {
    try {
        return operation();
    } catch (const std::bad_alloc&) {
        return Host::Status::asResult(Host::Status::OutOfMemory);
    } catch (...) {
        return Host::Status::asResult(Host::Status::Unspecified);
    }
}

}  // namespace Meridax::VisualControls::Rotavue
