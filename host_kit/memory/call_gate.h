#pragma once

#include "host_kit/memory/call.h"
#include "host_kit/memory/fault_plan.h"

#include <array>
#include <optional>
#include <type_traits>
#include <utility>

namespace Rotavue::HostKit {

class MemoryObject;

/// Every operation of a memory host goes through its gate. Where nobody watches and nothing is to
/// fail, that is the test of one byte; otherwise the call is written down, watched, made to fail or
/// to answer null. An operation that fails or answers null by plan does nothing of its part.
class CallGate {
public:
    /// Lets the watcher hear of the calls in these groups; null ends it.
    void watch(CallWatcher* watcher, CallGroups groups);

    /// The n-th call of that operation from here on (1 is the next one) fails with that status,
    /// once. The plan raises nothing for a status that means success.
    void fail(Fault fault);

    /// These operations, and no others, answer a null object from now on.
    void setNulls(Operations nulls);

    /// The n-th answer from here on that is an object is null, once.
    void nullObject(std::int64_t n);

    /// Runs `answer`, which is the host's part of the operation, and gives what it gave.
    template <class Answer, class... Arguments>
    auto call(Operation operation, const MemoryObject& on, Answer answer,
              const Arguments&... arguments) {
        if (!attended_[indexOf(operation)]) [[likely]]
            return answer();
        return attendedCall(operation, on, answer, arguments...);
    }

private:
    /// Stays out of line, so that the short way through an operation saves no registers for it.
    template <class Answer, class... Arguments>
    [[gnu::noinline]] auto attendedCall(Operation operation, const MemoryObject& on, Answer answer,
                                        const Arguments&... arguments) {
        // One after the other: this compiler loses the way out of a braced list of these whose
        // making throws.
        Call call;
        call.operation = operation;
        call.on = logNameOf(on);
        call.arguments.reserve(sizeof...(arguments));
        (call.arguments.push_back(toCallValue(arguments)), ...);
        return watched(std::move(call), answer);
    }

    template <class Answer>
    std::invoke_result_t<Answer> watched(Call call, Answer& answer);

    static std::optional<CallValue> logNameOf(const MemoryObject& on);
    bool admit(Call& call);
    void report(const Call& call) const;
    void reportFailure(Call& call, std::uint32_t status) const;
    bool watches(Operation operation) const;
    void refresh();

    std::array<bool, OperationCount> attended_{};
    FaultPlan plan_;
    CallWatcher* watcher_ = nullptr;
    CallGroups groups_;
};

template <class Answer>
std::invoke_result_t<Answer> CallGate::watched(Call call, Answer& answer) {
    using Result = std::invoke_result_t<Answer>;
    const bool null = admit(call);
    const auto run = [&]() -> Result {
        try {
            return null ? Result() : answer();
        } catch (const Host::HostError& error) {
            reportFailure(call, error.status);
            throw;
        }
    };
    if constexpr (std::is_void_v<Result>) {
        run();
        report(call);
    } else {
        Result result = run();
        call.result = toCallValue(result);
        report(call);
        return result;
    }
}

}  // namespace Rotavue::HostKit
