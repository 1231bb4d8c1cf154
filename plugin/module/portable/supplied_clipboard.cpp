#include "plugin/module/portable/supplied_clipboard.h"

#include "plugin/framework/unicode.h"

#include <new>
#include <utility>

namespace Meridax::VisualControls::Rotavue {

void SuppliedClipboard::supply(Host::Ref<Api::IHostClipboard> clipboard) noexcept {
    clipboard_ = std::move(clipboard);
}

Api::SystemClipboard::Block SuppliedClipboard::allocate(std::size_t bytes) noexcept {
    return ::operator new(bytes, std::nothrow);
}

void SuppliedClipboard::setUnicodeText(Block block) noexcept {
    // The host may supply another clipboard from inside the call.
    const Host::Ref<Api::IHostClipboard> clipboard = clipboard_;
    if (block == nullptr || !clipboard) return;
    try {
        clipboard->putText(Api::wideFromUtf16(static_cast<const char16_t*>(block)));
    } catch (...) {  // NOLINT(bugprone-empty-catch): no result of a clipboard is looked at.
    }
}

void SuppliedClipboard::free(Block block) noexcept {
    ::operator delete(block);
}

}  // namespace Meridax::VisualControls::Rotavue
