#include "host_kit/memory/utf8.h"

#include "host_kit/namespaces.h"
#include "plugin/framework/unicode.h"

#include <algorithm>
#include <stdexcept>

namespace Rotavue::HostKit {

std::string toUtf8(std::wstring_view text) {
    return Api::utf8FromWide(Api::wideFromUtf16(Api::utf16FromWide(text)));
}

std::string wellFormed(const std::string& text) {
    try {
        Api::wideFromUtf8(text);
        return text;
    } catch (const std::range_error&) {
        std::string plain = text;
        std::replace_if(
            plain.begin(), plain.end(), [](char c) { return static_cast<unsigned char>(c) > 127; },
            '?');
        return plain;
    }
}

std::size_t codePointCount(std::wstring_view text) {
    if constexpr (sizeof(wchar_t) == 4) return text.size();
    const auto isSecondHalf = [](wchar_t c) { return c >= 0xDC00 && c <= 0xDFFF; };
    const auto halves = std::count_if(text.begin(), text.end(), isSecondHalf);
    return text.size() - static_cast<std::size_t>(halves);
}

}  // namespace Rotavue::HostKit
