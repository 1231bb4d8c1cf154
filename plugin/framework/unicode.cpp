#include "plugin/framework/unicode.h"

#include <cstdint>
#include <stdexcept>

namespace Meridax::VisualControls::Api {

namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr char32_t Malformed = 0xFFFFFFFF;
constexpr char32_t LastCodePoint = 0x10FFFF;

constexpr bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr bool isCodePoint(char32_t number) {
    return number <= LastCodePoint && !isHighSurrogate(number) && !isLowSurrogate(number);
}

/// Takes one code point from the front of a wide or UTF-16 text; a pair of surrogates is one.
template <class Character>
char32_t takeUnits(std::basic_string_view<Character>& text) {
    const auto first = static_cast<char32_t>(text.front());
    text.remove_prefix(1);
    if (isCodePoint(first)) return first;
    if (!isHighSurrogate(first) || text.empty()) return Malformed;
    const auto second = static_cast<char32_t>(text.front());
    if (!isLowSurrogate(second)) return Malformed;
    text.remove_prefix(1);
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

template <class Character>
void appendUnits(std::basic_string<Character>& text, char32_t codePoint) {
    if (sizeof(Character) > 2 || codePoint < 0x10000) {
        text.push_back(static_cast<Character>(codePoint));
        return;
    }
    text.push_back(static_cast<Character>(0xD800 + ((codePoint - 0x10000) >> 10)));
    text.push_back(static_cast<Character>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
}

/// One UTF-16 form into another; what is malformed becomes the replacement character.
template <class To, class From>
std::basic_string<To> convertUnits(std::basic_string_view<From> text) {
    std::basic_string<To> result;
    result.reserve(text.size());
    while (!text.empty()) {
        const char32_t codePoint = takeUnits(text);
        appendUnits(result, codePoint == Malformed ? Replacement : codePoint);
    }
    return result;
}

/// How a code point of `bytes` bytes begins, and the least one that needs so many.
struct Utf8Form {
    std::uint8_t mask;
    std::uint8_t lead;
    std::size_t bytes;
    char32_t least;
};

constexpr Utf8Form Utf8Forms[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

[[noreturn]] void raiseBadConversion() {
    throw std::range_error("bad conversion");
}

const Utf8Form& formOfLead(std::uint8_t lead) {
    for (const Utf8Form& form : Utf8Forms)
        if ((lead & form.mask) == form.lead) return form;
    raiseBadConversion();
}

char32_t takeUtf8(std::string_view& text) {
    const auto lead = static_cast<std::uint8_t>(text.front());
    const Utf8Form& form = formOfLead(lead);
    if (text.size() < form.bytes) raiseBadConversion();
    char32_t codePoint = lead & static_cast<std::uint8_t>(~form.mask);
    for (std::size_t i = 1; i < form.bytes; ++i) {
        const auto byte = static_cast<std::uint8_t>(text[i]);
        if ((byte & 0xC0U) != 0x80U) raiseBadConversion();
        codePoint = (codePoint << 6) | (byte & 0x3FU);
    }
    if (codePoint < form.least || !isCodePoint(codePoint)) raiseBadConversion();
    text.remove_prefix(form.bytes);
    return codePoint;
}

void appendUtf8(std::string& text, char32_t codePoint) {
    std::size_t form = 0;
    while (form < 3 && codePoint >= Utf8Forms[form + 1].least)
        ++form;
    std::size_t shift = 6 * form;
    text.push_back(static_cast<char>(Utf8Forms[form].lead | (codePoint >> shift)));
    while (shift > 0) {
        shift -= 6;
        text.push_back(static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU)));
    }
}

}  // namespace

std::u16string utf16FromWide(std::wstring_view text) {
    return convertUnits<char16_t>(text);
}

std::wstring wideFromUtf16(std::u16string_view text) {
    return convertUnits<wchar_t>(text);
}

std::wstring wideFromUtf8(std::string_view text) {
    std::wstring result;
    result.reserve(text.size());
    while (!text.empty())
        appendUnits(result, takeUtf8(text));
    return result;
}

std::string utf8FromWide(std::wstring_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const char32_t codePoint = takeUnits(text);
        if (codePoint == Malformed) raiseBadConversion();
        appendUtf8(result, codePoint);
    }
    return result;
}

}  // namespace Meridax::VisualControls::Api
