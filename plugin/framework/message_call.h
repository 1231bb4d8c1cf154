#pragma once

#include "plugin/framework/message_arguments.h"
#include "plugin/framework/platform.h"
#include "plugin/framework/visual_control.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Meridax::VisualControls::Api {

/// The host as one message found it.
struct HostObjects {
    Host::Ref<Host::IHostApp> app;
    Host::Ref<Host::IHostVisualControl> control;

    bool operator==(const HostObjects&) const = default;
};

/// What a bridge holds. Destroyed from the last to the first: the control (which gives back its own
/// host references), then `hostControl`, then `hostApp`.
struct BridgeParts {
    SystemClipboard& clipboard;
    Host::Ref<Host::IHostApp> hostApp;                ///< null until message 2
    Host::Ref<Host::IHostVisualControl> hostControl;  ///< null until message 2
    std::unique_ptr<VisualControl> control;           ///< never null
    std::vector<HostObjects> heldInside;  ///< what messages inside another found, until that ends
    std::int32_t depth = 0;               ///< messages that are under way
};

/// One message on its way through a handler.
struct MessageCall {
    BridgeParts& bridge;
    const MessageArguments* arguments;  ///< as the host handed it in, null for a null list
    MessageResult& result;
};

/// Fetches the arguments, forwards them to the control, writes the result; gives the status.
using MessageHandler = std::int32_t (*)(const MessageCall& call);

}  // namespace Meridax::VisualControls::Api
