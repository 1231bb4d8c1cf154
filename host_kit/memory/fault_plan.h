#pragma once

#include "host_kit/memory/operation.h"
#include "plugin/framework/host/host_error.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace Rotavue::HostKit {

/// A failure that waits for its call.
struct Fault {
    std::optional<Operation> operation;  ///< nothing: of whatever operation
    std::int64_t call = 1;               ///< how many of them away, 1 being the next
    std::uint32_t status = Host::Status::Unspecified;
    std::shared_ptr<const Host::ErrorDetails> details{};  ///< what the object tells of it
};

/// Which calls of the host fail, and which answer a null object. Each fault comes true once.
class FaultPlan {
public:
    void fail(Fault fault) { faults_.push_back(std::move(fault)); }

    /// These operations, and no others, answer a null object from now on.
    void setNulls(Operations nulls) { nulls_ = nulls; }

    /// The n-th answer from now on that is an object is null, once.
    void nullObject(std::int64_t n) { nullAt_ = n; }

    /// Takes note of a call. Raises the failure that has come due, and otherwise tells whether the
    /// call answers a null object.
    bool admit(Operation operation);

    /// True when the last call made the plan shorter.
    bool changed() const { return changed_; }

    /// The operations whose calls the plan has to see.
    Operations attended() const;

private:
    std::optional<Fault> takeDue(Operation operation);
    bool takeNull();

    std::vector<Fault> faults_;
    Operations nulls_;
    std::int64_t nullAt_ = 0;
    bool changed_ = false;
};

}  // namespace Rotavue::HostKit
