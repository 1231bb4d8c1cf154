#pragma once

#include "plugin/framework/host/host_error.h"

#include <new>
#include <string>

namespace Meridax::Host {

/// Runs `make`, which makes a text that goes to the host or comes from it. Where the memory for it
/// is exhausted, `HostError` 0x8007000E is raised.
template <class Make>
auto madeText(Make make) {
    try {
        return make();
    } catch (const std::bad_alloc&) {
        throw HostError(Status::OutOfMemory);
    }
}

/// A text of ours for a call of the host.
inline std::wstring hostText(const wchar_t* text) {
    return madeText([text] { return std::wstring(text); });
}

}  // namespace Meridax::Host
