#include "plugin/framework/bridge.h"

#include "plugin/framework/host/host_error.h"
#include "plugin/framework/message_table.h"

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
      parts_{needs.clipboard, {}, {}, needs.makeControl()} {
    if (parts_.control == nullptr) Host::raiseNullObject();
}

std::int32_t VisualControlBridge::message(std::uint32_t code, const MessageArguments* arguments,
                                          MessageResult* result) {
    const auto self = Host::Ref<IMeridaxPlugin>::share(this);
    const Host::Ref<Host::IHostApp> app = parts_.hostApp;
    const Host::Ref<Host::IHostVisualControl> control = parts_.hostControl;
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
