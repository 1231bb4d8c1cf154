#pragma once

#include "host_kit/namespaces.h"
#include "plugin/framework/host/host_error.h"
#include "plugin/module/windows/platform_headers.h"

#include <new>
#include <string_view>

namespace Rotavue::HostKit {

/// Leaves the details of a failure with the thread, for whoever asks after the failed call.
void leaveDetails(const Host::ErrorDetails* details) noexcept;

/// The status that `operation` ends with: 0, or that of what it raises. A failure leaves its
/// details with the thread, and takes away what an earlier one left.
template <class Operation>
HRESULT statusOf(Operation operation) noexcept {
    try {
        operation();
        return S_OK;
    } catch (const Host::HostError& error) {
        leaveDetails(error.details.get());
        return static_cast<HRESULT>(error.status);
    } catch (const std::bad_alloc&) {
        leaveDetails(nullptr);
        return E_OUTOFMEMORY;
    } catch (...) {
        leaveDetails(nullptr);
        return E_FAIL;
    }
}

}  // namespace Rotavue::HostKit
