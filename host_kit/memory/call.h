#pragma once

#include "host_kit/memory/call_value.h"
#include "host_kit/memory/operation.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::HostKit {

/// One call of the plug-in into its host.
struct Call {
    Operation operation{};
    std::optional<CallValue> on;  ///< which channel, group, page or widget; nothing for the rest
    std::vector<CallValue> arguments;
    std::optional<CallValue> result;      ///< nothing for an operation without one, or that failed
    std::optional<std::uint32_t> failed;  ///< the status of a failure
};

/// The call as one line for tests and people: "IHostCanvas.MoveTo(10, 20)",
/// "IHostChannel.getValue[orbit](3, 4) -> 0.5", "IHostApp.getData() failed 0x80004005".
std::string toText(const Call& call);

/// A status as logs and sessions spell it: "0x80004005".
std::string statusText(std::uint32_t status);

/// Hears of calls. A watcher may do anything in between: change the description, send messages to
/// the control, throw; what it throws from `onCall` is what the operation throws.
class CallWatcher {
public:
    virtual ~CallWatcher() = default;

    /// The plug-in calls; the host has not done its part yet.
    virtual void onCall(Operation) {}

    /// The call is over, the failed ones included.
    virtual void onReturn(const Call&) {}
};

}  // namespace Rotavue::HostKit
