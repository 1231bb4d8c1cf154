#include "plugin/module/class_factory.h"

#include "plugin/framework/host/status.h"

namespace Meridax::VisualControls::Rotavue {

namespace {

namespace Status = Host::Status;

template <class Interface>
Interface* retained(Interface* object) {
    object->retain();
    return object;
}

}  // namespace

ClassFactory::ClassFactory(const Api::BridgeNeeds& needs, ClipboardTaker takeClipboard)
    : needs_(needs), takeClipboard_(std::move(takeClipboard)) {}

void* ClassFactory::offer(const Host::Guid& interfaceId) {
    auto* const factory = static_cast<IClassFactory*>(this);
    if (interfaceId == IHostObject::Identifier) return retained<IHostObject>(factory);
    if (interfaceId == IClassFactory::Identifier) return retained<IClassFactory>(factory);
    if (interfaceId == IModuleServices::Identifier) return retained<IModuleServices>(this);
    return nullptr;
}

std::int32_t ClassFactory::createInstance(Host::IHostObject* outer, const Host::Guid& interfaceId,
                                          void** object) noexcept {
    if (object == nullptr) return Status::asResult(Status::InvalidPointer);
    *object = nullptr;
    if (outer != nullptr && interfaceId != Host::IHostObject::Identifier)
        return Status::asResult(Status::NoAggregation);
    try {
        *object = Api::VisualControlBridge::create(needs_, outer)->offer(interfaceId);
    } catch (...) {
        return Status::asResult(Status::OutOfMemory);
    }
    return Status::asResult(*object == nullptr ? Status::NoInterface : Status::Ok);
}

std::int32_t ClassFactory::lockServer(bool lock) noexcept {
    if (lock) {
        ++locks_;
    } else {
        std::int32_t held = locks_;
        while (held > 0 && !locks_.compare_exchange_weak(held, held - 1)) {
        }
    }
    return Status::asResult(Status::Ok);
}

void ClassFactory::supplyClipboard(Api::IHostClipboard* clipboard) noexcept {
    takeClipboard_(Host::Ref<Api::IHostClipboard>::share(clipboard));
}

}  // namespace Meridax::VisualControls::Rotavue
