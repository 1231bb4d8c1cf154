#include "plugin/framework/clipboard_copy.h"

#include "plugin/framework/unicode.h"

#include <cstring>

namespace Meridax::VisualControls::Api {

namespace {

/// The units of the text up to its first zero: as they stand where wide characters are such units.
std::u16string unitsOf(std::wstring_view text) {
    const std::wstring_view copied = text.substr(0, text.find(L'\0'));
    if constexpr (sizeof(wchar_t) == sizeof(char16_t))
        return std::u16string(copied.begin(), copied.end());
    else
        return utf16FromWide(copied);
}

}  // namespace

void copyToClipboard(SystemClipboard& clipboard, std::wstring_view text) {
    const std::u16string units = unitsOf(text);
    const std::size_t bytes = (units.size() + 1) * sizeof(char16_t);

    clipboard.open();
    clipboard.empty();
    const SystemClipboard::Block block = clipboard.allocate(bytes);
    if (void* const memory = clipboard.lock(block)) std::memcpy(memory, units.c_str(), bytes);
    clipboard.unlock(block);
    clipboard.setUnicodeText(block);
    clipboard.close();
    clipboard.free(block);  // After the clipboard has taken it; hosts see this order.
}

}  // namespace Meridax::VisualControls::Api
