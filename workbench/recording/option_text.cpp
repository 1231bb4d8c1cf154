#include "workbench/recording/option_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace Rotavue::Workbench {
namespace {

template <typename Number>
std::optional<Number> wholeTextAs(const std::string& text) {
    Number value{};
    const char* end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, value);
    return fault == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

std::optional<double> read(const NumberItem& item, const std::string& text) {
    const bool hasPlus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    const auto value = wholeTextAs<double>(text.substr(hasPlus ? 1 : 0));
    return value && std::isfinite(*value) && isAllowed(item, *value) ? value : std::nullopt;
}

std::optional<int> read(const CountItem& item, const std::string& text) {
    const auto value = wholeTextAs<int>(text);
    return value && isAllowed(item, *value) ? value : std::nullopt;
}

std::optional<double> read(const AngleItem& item, const std::string& text) {
    const auto value = parseProbeAngle(text);
    return value && isAllowed(item, *value) ? value : std::nullopt;
}

std::optional<std::string> read(const TextItem&, const std::string& text) {
    if (text.empty() || text.size() > LongestItemText) return std::nullopt;
    return text;
}

template <typename Value>
std::optional<Value> read(const WordItem<Value>& item, const std::string& text) {
    return valueOf(item.words, text);
}

template <typename Item>
std::string shown(const Item&, double value) {
    return numberText(value);
}

std::string shown(const CountItem&, int value) {
    return std::to_string(value);
}

std::string shown(const TextItem&, const std::string& value) {
    return value;
}

template <typename Value>
std::string shown(const WordItem<Value>& item, Value value) {
    return std::string(wordFor(item.words, value));
}

}  // namespace

bool setItem(RecordingOptions& options, const OptionItem& item, const std::string& text) {
    return std::visit(
        [&](const auto& kind) {
            const auto value = read(kind, text);
            if (value) kind.field(options) = value;
            return value.has_value();
        },
        item.kind);
}

void clearItem(RecordingOptions& options, const OptionItem& item) {
    std::visit([&](const auto& kind) { kind.field(options).reset(); }, item.kind);
}

std::optional<std::string> itemText(const RecordingOptions& options, const OptionItem& item) {
    RecordingOptions source = options;
    return std::visit(
        [&](const auto& kind) -> std::optional<std::string> {
            const auto& value = kind.field(source);
            if (!value) return std::nullopt;
            return shown(kind, *value);
        },
        item.kind);
}

const OptionItem& itemAt(std::string_view pointer) {
    for (const OptionItem& item : optionItems())
        if (item.pointer == pointer) return item;
    throw std::logic_error("no item of a machine file is at " + std::string(pointer));
}

}  // namespace Rotavue::Workbench
