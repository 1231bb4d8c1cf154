#include "host_kit/memory/utf8.h"

namespace Rotavue::HostKit {

namespace {

constexpr char32_t Replacement = 0xFFFD;

bool isSurrogate(char32_t code) {
    return code >= 0xD800 && code <= 0xDFFF;
}

/// Takes one code point from the front; a surrogate pair counts as one where wide characters have
/// 16 bits.
char32_t takeWide(std::wstring_view& text) {
    auto code = static_cast<char32_t>(text.front());
    text.remove_prefix(1);
    if constexpr (sizeof(wchar_t) == 2) {
        code &= 0xFFFF;
        const char32_t low = text.empty() ? 0 : static_cast<char32_t>(text.front()) & 0xFFFF;
        if (code >= 0xD800 && code < 0xDC00 && low >= 0xDC00 && low <= 0xDFFF) {
            text.remove_prefix(1);
            return 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
        }
    }
    return code > 0x10FFFF || isSurrogate(code) ? Replacement : code;
}

void appendUtf8(std::string& out, char32_t code) {
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    if (code < 0x80) return put(code);
    if (code < 0x800) {
        put(0xC0 | (code >> 6));
    } else if (code < 0x10000) {
        put(0xE0 | (code >> 12));
        put(0x80 | ((code >> 6) & 0x3F));
    } else {
        put(0xF0 | (code >> 18));
        put(0x80 | ((code >> 12) & 0x3F));
        put(0x80 | ((code >> 6) & 0x3F));
    }
    put(0x80 | (code & 0x3F));
}

void appendWide(std::wstring& out, char32_t code) {
    if (sizeof(wchar_t) == 2 && code >= 0x10000) {
        out.push_back(static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10)));
        out.push_back(static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
    } else {
        out.push_back(static_cast<wchar_t>(code));
    }
}

/// The length that a first byte announces, and the smallest code point that may have it.
struct Form {
    std::size_t length;
    char32_t bits;
    char32_t smallest;
};

Form formOf(unsigned char first) {
    if (first < 0x80) return {1, first, 0};
    if (first >= 0xC0 && first < 0xE0) return {2, first & 0x1FU, 0x80};
    if (first >= 0xE0 && first < 0xF0) return {3, first & 0x0FU, 0x800};
    if (first >= 0xF0 && first < 0xF8) return {4, first & 0x07U, 0x10000};
    return {0, 0, 0};
}

/// Takes one code point from the front, or one bad byte as U+FFFD.
char32_t takeUtf8(std::string_view& text) {
    const Form form = formOf(static_cast<unsigned char>(text.front()));
    char32_t code = form.bits;
    bool good = form.length != 0 && form.length <= text.size();
    for (std::size_t i = 1; good && i < form.length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        good = (byte & 0xC0U) == 0x80U;
        code = (code << 6) | (byte & 0x3FU);
    }
    good = good && code >= form.smallest && code <= 0x10FFFF && !isSurrogate(code);
    text.remove_prefix(good ? form.length : 1);
    return good ? code : Replacement;
}

}  // namespace

std::string toUtf8(std::wstring_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty())
        appendUtf8(result, takeWide(text));
    return result;
}

std::wstring fromUtf8(std::string_view text) {
    std::wstring result;
    result.reserve(text.size());
    while (!text.empty())
        appendWide(result, takeUtf8(text));
    return result;
}

std::string wellFormed(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty())
        appendUtf8(result, takeUtf8(text));
    return result;
}

std::size_t codePointCount(std::wstring_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        takeWide(text);
    return count;
}

}  // namespace Rotavue::HostKit
