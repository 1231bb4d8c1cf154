#include "host_kit/loader/windows/com_control.h"

#include "host_kit/loader/windows/system_clipboard.h"
#include "host_kit/loader/windows/variant_list.h"

namespace Rotavue::HostKit {

void ComControl::release() noexcept {
    if (--references_ == 0) delete this;
}

void* ComControl::offer(const Host::Guid& interfaceId) {
    if (interfaceId != Identifier && interfaceId != IHostObject::Identifier) return nullptr;
    retain();
    return static_cast<Api::IMeridaxPlugin*>(this);
}

std::int32_t ComControl::message(std::uint32_t code, const Api::MessageArguments* arguments,
                                 Api::MessageResult* result) {
    const std::uint32_t changes = SystemClipboard::changes();
    const std::int32_t status = send(code, arguments, result);
    const auto& clipboard = surroundings_->clipboard;
    if (clipboard && SystemClipboard::changes() != changes) {
        if (const auto text = SystemClipboard::text()) clipboard->putText(*text);
    }
    return status;
}

std::int32_t ComControl::send(std::uint32_t code, const Api::MessageArguments* arguments,
                              Api::MessageResult* result) {
    const OwnedVariant list = variantOf(code, dynamic_cast<const MessageList*>(arguments));
    OwnedVariant written;
    const HRESULT status = plugin_->message(code, *list, written.get());
    if (auto* answer = dynamic_cast<MessageAnswer*>(result)) readResult(*written, *answer);
    return status;
}

}  // namespace Rotavue::HostKit
