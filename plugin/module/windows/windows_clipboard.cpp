#include "plugin/module/windows/windows_clipboard.h"

#include "plugin/module/windows/platform_headers.h"

namespace Meridax::VisualControls::Rotavue {

void WindowsClipboard::open() noexcept {
    ::OpenClipboard(nullptr);
}

void WindowsClipboard::empty() noexcept {
    ::EmptyClipboard();
}

Api::SystemClipboard::Block WindowsClipboard::allocate(std::size_t bytes) noexcept {
    return ::GlobalAlloc(GMEM_MOVEABLE, bytes);
}

void* WindowsClipboard::lock(Block block) noexcept {
    return ::GlobalLock(block);
}

void WindowsClipboard::unlock(Block block) noexcept {
    ::GlobalUnlock(block);
}

void WindowsClipboard::setUnicodeText(Block block) noexcept {
    ::SetClipboardData(CF_UNICODETEXT, block);
}

void WindowsClipboard::close() noexcept {
    ::CloseClipboard();
}

void WindowsClipboard::free(Block block) noexcept {
    ::GlobalFree(block);
}

}  // namespace Meridax::VisualControls::Rotavue
