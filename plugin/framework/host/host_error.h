#pragma once

#include "plugin/framework/host/guid.h"
#include "plugin/framework/host/status.h"

#include <cstdint>
#include <exception>
#include <memory>
#include <string>

namespace Meridax::Host {

/// What an object tells of its last failure on this thread, where it tells anything.
struct ErrorDetails {
    std::wstring source;
    std::wstring description;
};

/// What a failed host call raises. Nothing in the plug-in catches it: it unwinds through the
/// operation in progress, out of `message` and into the host.
///
/// `status` and `interfaceId` are plain members, so that a host reads them without calling into
/// the module that threw.
class HostError : public std::exception {
public:
    explicit HostError(std::uint32_t failure, const Guid& calledInterface = {},
                       std::shared_ptr<const ErrorDetails> toldDetails = nullptr) noexcept
        : status(failure), interfaceId(calledInterface), details(std::move(toldDetails)) {}

    const char* what() const noexcept override { return "a call of the host failed"; }

    std::uint32_t status;  ///< the failed status, highest bit set
    Guid interfaceId;      ///< the interface that was called; all zero where there is none
    std::shared_ptr<const ErrorDetails> details;  ///< null where the object told none
};

/// The one rule for the status of a host call: a failure raises `HostError` with the status and the
/// interface; zero and every positive status is success and is not looked at further.
inline void raiseIfFailed(std::uint32_t status, const Guid& calledInterface,
                          std::shared_ptr<const ErrorDetails> details = nullptr) {
    if (Status::isFailure(status)) throw HostError(status, calledInterface, std::move(details));
}

/// A null object where one is needed, before or after a call: status 0x80004003, no interface.
[[noreturn]] inline void raiseNullObject() {
    throw HostError(Status::InvalidPointer);
}

}  // namespace Meridax::Host
