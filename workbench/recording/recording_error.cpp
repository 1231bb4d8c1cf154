#include "workbench/recording/recording_error.h"

#include <utility>

namespace Rotavue::Workbench {
namespace {

constexpr std::size_t MaxQuotedLength = 40;

bool isControl(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 0x20 || code == 0x7F;
}

std::string oneLine(std::string_view text) {
    std::string line(text);
    for (char& c : line) {
        if (isControl(c)) c = '?';
    }
    return line;
}

// A cut never leaves half of a UTF-8 character behind.
std::size_t cutPosition(std::string_view text, std::size_t most) {
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0) == 0x80)
        --most;
    return most;
}

std::string placeText(const FilePlace& place) {
    std::string text = oneLine(place.file.string());
    if (place.line > 0) text += ':' + std::to_string(place.line);
    if (place.line > 0 && place.column > 0) text += ':' + std::to_string(place.column);
    return text.empty() ? text : text + ": ";
}

}  // namespace

RecordingError::RecordingError(FilePlace place, std::string_view found, std::string_view allowed)
    : std::runtime_error(placeText(place) + "found " + oneLine(found) +
                         ", allowed: " + oneLine(allowed)),
      place_(std::move(place)) {}

std::string inQuotes(std::string_view text) {
    const bool cut = text.size() > MaxQuotedLength;
    const std::string_view shown = cut ? text.substr(0, cutPosition(text, MaxQuotedLength)) : text;
    return '"' + oneLine(shown) + (cut ? "...\"" : "\"");
}

}  // namespace Rotavue::Workbench
