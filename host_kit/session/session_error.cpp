#include "host_kit/session/session_error.h"

#include "host_kit/memory/call_value.h"
#include "host_kit/memory/utf8.h"

#include <algorithm>

namespace Rotavue::HostKit {

namespace {

constexpr std::size_t LongestQuote = 60;
constexpr std::size_t LongestPointer = 400;

/// Cuts between two characters.
std::string shortened(std::string_view text, std::size_t length) {
    if (text.size() <= length) return std::string(text);
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        --length;
    return std::string(text.substr(0, length)) + "...";
}

std::string oneLine(std::string text) {
    text = wellFormed(text);
    std::replace_if(
        text.begin(), text.end(),
        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
    return text;
}

}  // namespace

SessionError::SessionError(const std::string& pointer, std::string_view wrong)
    : std::runtime_error(
          oneLine(shortened(pointer.empty() ? "(the whole file)" : pointer, LongestPointer) + ": " +
                  std::string(wrong))) {}

std::string inQuotes(std::string_view text) {
    std::string result;
    appendJson(result, shortened(text, LongestQuote));
    return result;
}

}  // namespace Rotavue::HostKit
