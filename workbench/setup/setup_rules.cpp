#include "workbench/setup/setup_rules.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <variant>

#include "plugin/settings/panel_table.h"
#include "workbench/recording/nearest_name.h"
#include "workbench/recording/option_items.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

namespace Control = Meridax::VisualControls::Rotavue;

constexpr std::string_view AllowedKeys = "the keys that \"rotavue setup new\" writes";
constexpr std::size_t LongestNumber = 400;  // an f64 has up to 309 digits before its point

struct TruthRule {};

struct WholeRule {
    std::int64_t least = std::numeric_limits<std::int32_t>::min();
    std::int64_t most = std::numeric_limits<std::int32_t>::max();
};

struct NumberRule {
    double least = -std::numeric_limits<double>::max();
    double most = std::numeric_limits<double>::max();
};

struct ChoiceRule {
    std::array<const wchar_t*, 2> words{};
};

using Rule = std::variant<TruthRule, WholeRule, NumberRule, ChoiceRule>;

struct KeyRule {
    std::string_view key;
    Rule rule;
};

using KeyRules = std::array<KeyRule, Control::SettingsTable.size()>;

// The three kinds of value that a setting has, before the panel narrows them.
constexpr Rule ruleOf(const Control::SettingValue& value) {
    if (std::holds_alternative<bool>(value)) return TruthRule{};
    if (std::holds_alternative<double>(value)) return NumberRule{};
    return WholeRule{};
}

struct Narrowed {
    Rule rule;

    constexpr Rule operator()(const Control::NumberEdit& edit) const {
        return WholeRule{edit.minimum, edit.maximum};
    }
    constexpr Rule operator()(const Control::FloatEdit& edit) const {
        return NumberRule{edit.minimum, edit.maximum};
    }
    constexpr Rule operator()(const Control::ComboBox& box) const { return ChoiceRule{box.items}; }
    constexpr Rule operator()(const auto&) const { return rule; }
};

constexpr KeyRules makeRules() {
    KeyRules rules;
    for (std::size_t i = 0; i < rules.size(); ++i) {
        const Control::Setting& setting = Control::SettingsTable[i];
        rules[i] = {setting.key, ruleOf(setting.missing)};
    }
    for (const Control::PanelPage& page : Control::PanelPages) {
        for (const Control::PanelWidget& widget : page.widgets) {
            Rule& rule = rules[widget.setting].rule;
            rule = std::visit(Narrowed{rule}, widget.form);
        }
    }
    return rules;
}

constexpr KeyRules Rules = makeRules();

const KeyRule* find(std::string_view key) {
    const auto found = std::find_if(Rules.begin(), Rules.end(),
                                    [&](const KeyRule& rule) { return rule.key == key; });
    return found != Rules.end() ? &*found : nullptr;
}

template <class Number>
std::optional<Number> wholeText(std::string_view text) {
    Number value{};
    const char* const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, value);
    const bool whole = fault == std::errc{} && stop == end;
    return whole ? std::optional(value) : std::nullopt;
}

// A control reads a number with a comma as well as one with a point.
std::optional<double> numberIn(std::string_view text) {
    if (text.size() > LongestNumber) return std::nullopt;
    std::string pointed(text);
    if (const auto comma = pointed.find_first_of(",."); comma != std::string::npos) {
        pointed[comma] = '.';
    }
    return wholeText<double>(pointed);
}

bool takes(const TruthRule&, std::string_view text) {
    constexpr std::array Texts{"True", "False", "true", "false", "1", "0"};
    return std::find(Texts.begin(), Texts.end(), text) != Texts.end();
}

bool takes(const WholeRule& rule, std::string_view text) {
    const auto value = wholeText<std::int64_t>(text);
    return value && *value >= rule.least && *value <= rule.most;
}

bool takes(const NumberRule& rule, std::string_view text) {
    const auto value = numberIn(text);
    return value && *value >= rule.least && *value <= rule.most;  // no NaN, no infinity
}

bool takes(const ChoiceRule&, std::string_view text) {
    return text == "0" || text == "1";
}

std::string describe(const TruthRule&) {
    return "True or False";
}

std::string describe(const WholeRule& rule) {
    return "a whole number from " + std::to_string(rule.least) + " to " + std::to_string(rule.most);
}

std::string describe(const NumberRule& rule) {
    if (rule.most == NumberRule{}.most) return "a number";
    return "a number from " + numberText(rule.least) + " to " + numberText(rule.most);
}

std::string describe(const ChoiceRule& rule) {
    const auto plain = [](std::wstring_view word) { return std::string(word.begin(), word.end()); };
    return "0 (" + plain(rule.words[0]) + ") or 1 (" + plain(rule.words[1]) + ')';
}

}  // namespace

std::vector<std::string> settingKeys() {
    std::vector<std::string> keys;
    for (const KeyRule& rule : Rules)
        keys.emplace_back(rule.key);
    return keys;
}

bool isSettingKey(std::string_view key) {
    return find(key) != nullptr;
}

bool isSettingText(std::string_view key, std::string_view text) {
    const KeyRule* rule = find(key);
    return rule != nullptr &&
           std::visit([&](const auto& kind) { return takes(kind, text); }, rule->rule);
}

std::string allowedTexts(std::string_view key) {
    const KeyRule* rule = find(key);
    if (rule == nullptr) return std::string(AllowedKeys);
    return std::visit([](const auto& kind) { return describe(kind); }, rule->rule);
}

std::string unknownKey(std::string_view key) {
    return "no setting " + inQuotes(key) + " (the nearest is " +
           inQuotes(nearestName(key, settingKeys())) + ')';
}

void checkSetup(const std::filesystem::path& file, const SetupEntries& entries) {
    std::map<std::string_view, std::size_t> lines;
    for (const SetupEntry& entry : entries) {
        const FilePlace place{file, entry.line};
        if (!isSettingKey(entry.key))
            throw RecordingError(place, unknownKey(entry.key), AllowedKeys);
        const auto [before, fresh] = lines.emplace(entry.key, entry.line);
        if (!fresh) {
            throw RecordingError(place,
                                 inQuotes(entry.key) + " a second time, after line " +
                                     std::to_string(before->second),
                                 "each key once");
        }
        if (isSettingText(entry.key, entry.text)) continue;
        const std::string found = entry.text.empty() ? "nothing" : inQuotes(entry.text);
        throw RecordingError(place, found + " for " + inQuotes(entry.key), allowedTexts(entry.key));
    }
}

SetupEntries readCheckedSetup(const std::filesystem::path& file) {
    SetupEntries entries = readSetupFile(file);
    checkSetup(file, entries);
    return entries;
}

}  // namespace Rotavue::Workbench
