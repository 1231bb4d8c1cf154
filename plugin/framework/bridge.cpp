#include "plugin/framework/bridge.h"

#include "plugin/framework/host/host_error.h"
#include "plugin/framework/message_table.h"

#include <algorithm>
#include <utility>

namespace Meridax::VisualControls::Api {

namespace {

/// Takes the result of a message whose caller wants none.
class DroppedResult final : public MessageResult {
public:
    void putInteger16(std::int16_t /*value*/) override {}
    void putBoolean(bool /*value*/) override {}
    void putFourIntegers() override {}
    void setInteger(std::size_t /*index*/, std::int32_t /*value*/) override {}
};

/// Holds the host's two objects as a message finds them. The message may hand in others while calls
/// on these are under way, in it or in one round it: what one inside another has found stays until
/// the outermost ends. A host that has handed in too many raises 0x80004005.
class HeldHost {
public:
    explicit HeldHost(BridgeParts& parts)
        : parts_(parts), found_{parts.hostApp, parts.hostControl} {
        if (parts_.depth > 0 && !isHeld()) hold();
        ++parts_.depth;
    }
    HeldHost(const HeldHost&) = delete;
    HeldHost& operator=(const HeldHost&) = delete;
    ~HeldHost() {
        --parts_.depth;
        // The last release of an object may send the next message.
        if (parts_.depth == 0) const auto ended = std::exchange(parts_.heldInside, {});
    }

private:
    bool isHeld() const {
        return std::ranges::find(parts_.heldInside, found_) != parts_.heldInside.end();
    }

    void hold() {
        constexpr std::size_t Most = 1000;  // a host has two objects for as long as it lives
        if (parts_.heldInside.size() == Most) throw Host::HostError(Host::Status::Unspecified);
        parts_.heldInside.push_back(found_);
    }

    BridgeParts& parts_;
    const HostObjects found_;
};

template <class Interface>
Interface* retained(Interface* object) {
    object->retain();
    return object;
}

}  // namespace

Host::Ref<Host::IHostObject> VisualControlBridge::create(const BridgeNeeds& needs,
                                                         Host::IHostObject* outer) {
    auto* const bridge = new VisualControlBridge(needs, outer);
    return Host::Ref<Host::IHostObject>::adopt(&bridge->identity_);
}

VisualControlBridge::VisualControlBridge(const BridgeNeeds& needs, Host::IHostObject* outer)
    : live_(needs.liveObjects),
      identity_(*this),
      outer_(outer == nullptr ? identity_ : *outer),
      parts_{needs.clipboard, {}, {}, needs.makeControl(), {}} {
    if (parts_.control == nullptr) Host::raiseNullObject();
}

std::int32_t VisualControlBridge::message(std::uint32_t code, const MessageArguments* arguments,
                                          MessageResult* result) {
    const auto self = Host::Ref<IMeridaxPlugin>::share(this);
    const HeldHost held(parts_);
    DroppedResult dropped;
    return handlerOf(code)({parts_, arguments, result == nullptr ? dropped : *result});
}

void VisualControlBridge::Identity::release() noexcept {
    if (--count_ > 0) return;
    count_ = 1;  // What the host does while the parts go must not end the bridge a second time.
    delete &bridge_;
}

void* VisualControlBridge::Identity::offer(const Host::Guid& interfaceId) {
    if (interfaceId == IHostObject::Identifier) return retained<IHostObject>(this);
    if (interfaceId == IMeridaxPlugin::Identifier) return retained<IMeridaxPlugin>(&bridge_);
    if (interfaceId == IVCPluginImpl::Identifier) return retained<IVCPluginImpl>(&bridge_);
    return nullptr;
}

}  // namespace Meridax::VisualControls::Api
