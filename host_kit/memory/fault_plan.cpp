#include "host_kit/memory/fault_plan.h"

#include <algorithm>
#include <utility>

namespace Rotavue::HostKit {

bool FaultPlan::admit(Operation operation) {
    changed_ = false;
    if (const auto due = takeDue(operation)) {
        Host::raiseIfFailed(due->status, interfaceOf(operation), due->details);
    }
    if (rowOf(operation).answer != Answer::Object) return false;
    return takeNull() || nulls_.test(indexOf(operation));
}

Operations FaultPlan::attended() const {
    Operations result = nulls_;
    for (const Fault& fault : faults_) {
        fault.operation ? result.set(indexOf(*fault.operation)) : result.set();
    }
    if (nullAt_ > 0) result.set();
    return result;
}

/// Every fault that waits for this operation comes one call closer; the first that has arrived
/// counts, others that arrived with it are spent as well.
std::optional<Fault> FaultPlan::takeDue(Operation operation) {
    std::optional<Fault> due;
    std::erase_if(faults_, [&](Fault& fault) {
        if (fault.operation.value_or(operation) != operation || --fault.call > 0) return false;
        if (!due) due = std::move(fault);
        changed_ = true;
        return true;
    });
    return due;
}

bool FaultPlan::takeNull() {
    if (nullAt_ == 0 || --nullAt_ > 0) return false;
    changed_ = true;
    return true;
}

}  // namespace Rotavue::HostKit
