#include "host_kit/memory/call_gate.h"

#include "host_kit/memory/memory_object.h"

namespace Rotavue::HostKit {

void CallGate::watch(CallWatcher* watcher, CallGroups groups) {
    watcher_ = watcher;
    groups_ = groups;
    refresh();
}

void CallGate::fail(Fault fault) {
    plan_.fail(std::move(fault));
    refresh();
}

void CallGate::setNulls(Operations nulls) {
    plan_.setNulls(nulls);
    refresh();
}

void CallGate::nullObject(std::int64_t n) {
    plan_.nullObject(n);
    refresh();
}

std::optional<CallValue> CallGate::logNameOf(const MemoryObject& on) {
    return on.logName();
}

bool CallGate::admit(Call& call) {
    if (watches(call.operation)) watcher_->onCall(call.operation);
    try {
        const bool null = plan_.admit(call.operation);
        if (plan_.changed()) refresh();
        return null;
    } catch (const Host::HostError& error) {
        refresh();
        reportFailure(call, error.status);
        throw;
    }
}

void CallGate::report(const Call& call) const {
    if (watches(call.operation)) watcher_->onReturn(call);
}

void CallGate::reportFailure(Call& call, std::uint32_t status) const {
    call.failed = status;
    report(call);
}

bool CallGate::watches(Operation operation) const {
    return watcher_ != nullptr && groups_.test(static_cast<std::size_t>(rowOf(operation).group));
}

void CallGate::refresh() {
    const Operations planned = plan_.attended();
    for (std::size_t i = 0; i < OperationCount; ++i) {
        attended_[i] = planned.test(i) || watches(static_cast<Operation>(i));
    }
}

}  // namespace Rotavue::HostKit
