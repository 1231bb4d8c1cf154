#include "plugin/framework/unicode.h"

#include "plugin/framework/host/code_points.h"

#include <optional>
#include <stdexcept>

namespace Meridax::VisualControls::Api {

namespace {

using Host::appendCodePoint;
using Host::takeCodePoint;

/// One UTF-16 form into another; what is malformed becomes the replacement character.
template <class To, class From>
std::basic_string<To> convertUnits(std::basic_string_view<From> text) {
    std::basic_string<To> result;
    result.reserve(text.size());
    while (!text.empty())
        appendCodePoint(result, takeCodePoint(text).value_or(Host::ReplacementCodePoint));
    return result;
}

/// From and to UTF-8; nothing is passed over.
template <class To, class From>
std::basic_string<To> convertStrictly(std::basic_string_view<From> text) {
    std::basic_string<To> result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::optional<char32_t> codePoint = takeCodePoint(text);
        if (!codePoint) throw std::range_error("bad conversion");
        appendCodePoint(result, *codePoint);
    }
    return result;
}

}  // namespace

std::u16string utf16FromWide(std::wstring_view text) {
    return convertUnits<char16_t>(text);
}

std::wstring wideFromUtf16(std::u16string_view text) {
    return convertUnits<wchar_t>(text);
}

std::wstring wideFromUtf8(std::string_view text) {
    return convertStrictly<wchar_t>(text);
}

std::string utf8FromWide(std::wstring_view text) {
    return convertStrictly<char>(text);
}

}  // namespace Meridax::VisualControls::Api
