#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The code points of texts: UTF-8 in 8-bit units, UTF-16 in units of 16 bits, and one code point a
/// unit in wider ones. A pair of surrogates is one code point in wide units too.
namespace Meridax::Host {

inline constexpr char32_t ReplacementCodePoint = 0xFFFD;

namespace Detail {

constexpr bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr bool isCodePoint(char32_t number) {
    return number <= 0x10FFFF && !isHighSurrogate(number) && !isLowSurrogate(number);
}

/// How a code point of so many bytes begins, and the least one that needs them.
struct Utf8Form {
    std::uint8_t mask;
    std::uint8_t lead;
    char32_t least;
};

inline constexpr std::array<Utf8Form, 4> Utf8Forms{
    {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}}};

/// The code point at the start of the text, if the text begins with `extra` + 1 bytes that are one.
inline std::optional<char32_t> utf8CodePoint(std::string_view text, std::size_t extra) {
    const Utf8Form& form = Utf8Forms[extra];
    if (text.size() <= extra) return {};
    auto codePoint = static_cast<char32_t>(static_cast<std::uint8_t>(text[0]) & ~form.mask);
    for (const char c : text.substr(1, extra)) {
        const auto byte = static_cast<std::uint8_t>(c);
        if ((byte & 0xC0U) != 0x80U) return {};
        codePoint = (codePoint << 6U) | (byte & 0x3FU);
    }
    if (codePoint < form.least || !isCodePoint(codePoint)) return {};
    return codePoint;
}

}  // namespace Detail

/// Takes the code point at the front of `text`, which is not empty. Where none begins it takes one
/// unit and gives nothing: overlong and cut-off forms, surrogates, numbers above 0x10FFFF.
inline std::optional<char32_t> takeCodePoint(std::string_view& text) {
    const auto lead = static_cast<std::uint8_t>(text.front());
    for (std::size_t extra = 0; extra < Detail::Utf8Forms.size(); ++extra) {
        if ((lead & Detail::Utf8Forms[extra].mask) != Detail::Utf8Forms[extra].lead) continue;
        const std::optional<char32_t> codePoint = Detail::utf8CodePoint(text, extra);
        text.remove_prefix(codePoint ? extra + 1 : 1);
        return codePoint;
    }
    text.remove_prefix(1);
    return {};
}

/// The same for wide text and UTF-16.
template <class Unit>
std::optional<char32_t> takeCodePoint(std::basic_string_view<Unit>& text) {
    const auto first = static_cast<char32_t>(text.front());
    text.remove_prefix(1);
    if (Detail::isCodePoint(first)) return first;
    if (!Detail::isHighSurrogate(first) || text.empty()) return {};
    const auto second = static_cast<char32_t>(text.front());
    if (!Detail::isLowSurrogate(second)) return {};
    text.remove_prefix(1);
    return 0x10000 + ((first - 0xD800) << 10U) + (second - 0xDC00);
}

/// Appends a code point as UTF-8.
inline void appendCodePoint(std::string& text, char32_t codePoint) {
    std::size_t extra = 0;
    while (extra < 3 && codePoint >= Detail::Utf8Forms[extra + 1].least)
        ++extra;
    std::size_t shift = 6 * extra;
    text.push_back(static_cast<char>(Detail::Utf8Forms[extra].lead | (codePoint >> shift)));
    while (shift > 0) {
        shift -= 6;
        text.push_back(static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU)));
    }
}

/// Appends a code point to wide text or UTF-16.
template <class Unit>
void appendCodePoint(std::basic_string<Unit>& text, char32_t codePoint) {
    if (sizeof(Unit) > 2 || codePoint < 0x10000) {
        text.push_back(static_cast<Unit>(codePoint));
        return;
    }
    text.push_back(static_cast<Unit>(0xD800 + ((codePoint - 0x10000) >> 10U)));
    text.push_back(static_cast<Unit>(0xDC00 + ((codePoint - 0x10000) & 0x3FFU)));
}

}  // namespace Meridax::Host
