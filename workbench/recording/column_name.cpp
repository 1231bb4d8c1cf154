#include "workbench/recording/column_name.h"

#include <algorithm>
#include <array>

#include "workbench/recording/fields.h"

namespace Rotavue::Workbench {
namespace {

constexpr auto KnownUnits = std::to_array<std::string_view>(
    {"s",    "ms", "us", "\u00B5s", "ns",     "um",  "\u00B5m", "\u03BCm", "mm",  "mil",
     "mils", "V",  "mV", "deg",     "\u00B0", "rad", "rpm",     "1/min",   "RPM", "Hz"});

bool isSmall(char c) {
    return c >= 'a' && c <= 'z';
}
bool isCapital(char c) {
    return c >= 'A' && c <= 'Z';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Bytes beyond ASCII belong to letters.
bool isLetter(char c) {
    return isSmall(c) || isCapital(c) || static_cast<unsigned char>(c) > 0x7F;
}

char openerOf(std::string_view text) {
    if (text.ends_with(']')) return '[';
    return text.ends_with(')') ? '(' : '\0';
}

}  // namespace

NameWithUnit splitUnit(std::string_view text) {
    text = trimmed(text);
    const char opener = openerOf(text);
    const std::size_t position = opener ? text.rfind(opener) : std::string_view::npos;
    if (position == std::string_view::npos || position == 0) return {std::string(text), ""};
    const std::string_view unit = text.substr(position + 1, text.size() - position - 2);
    return {std::string(trimmed(text.substr(0, position))), std::string(trimmed(unit))};
}

std::string_view withoutBrackets(std::string_view text) {
    const char opener = openerOf(text);
    return opener && text.front() == opener ? trimmed(text.substr(1, text.size() - 2)) : text;
}

bool isUnitText(std::string_view text) {
    return withoutBrackets(text) != text ||
           std::find(std::begin(KnownUnits), std::end(KnownUnits), text) != std::end(KnownUnits);
}

std::vector<std::string> wordsOf(std::string_view name) {
    std::vector<std::string> words;
    char previous = ' ';
    for (const char c : name) {
        const bool part = isLetter(c) || isDigit(c);
        const bool begins =
            !(isLetter(previous) || isDigit(previous)) || (isSmall(previous) && isCapital(c));
        if (part && begins) words.emplace_back();
        if (part) words.back() += isCapital(c) ? static_cast<char>(c - 'A' + 'a') : c;
        previous = c;
    }
    return words;
}

}  // namespace Rotavue::Workbench
