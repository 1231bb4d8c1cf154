#pragma once

#include "plugin/framework/live_objects.h"
#include "plugin/framework/message_call.h"
#include "plugin/framework/plugin_interfaces.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace Meridax::VisualControls::Api {

/// Makes the one control of a bridge. The module hands it in, so that the framework does not know
/// which control it carries.
using ControlMaker = std::function<std::unique_ptr<VisualControl>()>;

/// What a bridge needs of the module; all of it outlives the bridge.
struct BridgeNeeds {
    const ControlMaker& makeControl;
    SystemClipboard& clipboard;
    LiveObjects& liveObjects;
};

/// The object that the host creates and talks to. It owns one visual control and turns each
/// numbered message into one operation of that control. It has no states and imposes no order.
///
/// The life of a bridge:
///  1. made by the class factory, the control with it; the module counts one living object more;
///  2. message 0 and 7 answer at any time, every other message reaches the control as it comes;
///  3. message 2 stores the host's objects here and in the control and runs the version gate; it
///     may come again;
///  4. for the length of each message the bridge holds a reference to itself and to the host's two
///     objects: a host that lets go of it, or hands in others, from inside a callback finds nothing
///     destroyed under its feet;
///  5. with the last release the control goes, then `hostControl`, then `hostApp`.
///
/// Nothing is caught here: what a message cannot do, it throws into the host. The reference count
/// is a plain number, since one thread delivers all messages.
class VisualControlBridge final : public IMeridaxPlugin, public IVCPluginImpl {
public:
    /// Makes a bridge and gives its identity. With an outer object the identity operations of the
    /// bridge's other interfaces go there. Raises whatever the maker raises, and 0x80004003 when it
    /// makes nothing.
    static Host::Ref<Host::IHostObject> create(const BridgeNeeds& needs,
                                               Host::IHostObject* outer = nullptr);

    VisualControlBridge(const VisualControlBridge&) = delete;
    VisualControlBridge& operator=(const VisualControlBridge&) = delete;

    void retain() noexcept override { outer_.retain(); }
    void release() noexcept override { outer_.release(); }
    void* offer(const Host::Guid& interfaceId) override { return outer_.offer(interfaceId); }

    std::int32_t message(std::uint32_t code, const MessageArguments* arguments,
                         MessageResult* result) override;

private:
    /// The bridge's own reference count and interfaces, whoever the outer object is.
    class Identity final : public Host::IHostObject {
    public:
        explicit Identity(VisualControlBridge& bridge) noexcept : bridge_(bridge) {}

        void retain() noexcept override { ++count_; }
        void release() noexcept override;
        void* offer(const Host::Guid& interfaceId) override;

    private:
        VisualControlBridge& bridge_;
        std::int32_t count_ = 1;
    };

    VisualControlBridge(const BridgeNeeds& needs, Host::IHostObject* outer);
    ~VisualControlBridge() = default;

    LiveObject live_;
    Identity identity_;
    Host::IHostObject& outer_;  ///< `identity_` for a bridge that stands alone
    BridgeParts parts_;
};

}  // namespace Meridax::VisualControls::Api
