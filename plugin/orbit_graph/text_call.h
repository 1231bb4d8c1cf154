#pragma once

#include "plugin/framework/host/host_error.h"

#include <new>

namespace Meridax::VisualControls::Rotavue {

/// Runs a call that passes a text to the host. The text takes memory on its way; where none is left
/// for it, `HostError` 0x8007000E is raised.
template <class Call>
auto passingText(Call call) {
    try {
        return call();
    } catch (const std::bad_alloc&) {
        throw Host::HostError(Host::Status::OutOfMemory);
    }
}

}  // namespace Meridax::VisualControls::Rotavue
