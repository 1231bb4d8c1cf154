#include "workbench/recording/machine_file.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <variant>
#include <vector>

#include "workbench/recording/input_file.h"
#include "workbench/recording/json_text.h"
#include "workbench/recording/nearest_name.h"
#include "workbench/recording/option_items.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

using Json = nlohmann::json;
using Pointer = Json::json_pointer;

constexpr std::size_t LargestFile = 65'536;
constexpr std::size_t LongestText = 200;
constexpr JsonBounds Bounds = {8, 1'000};  // a machine file has less than 40 parts on 2 levels

// What a JSON value becomes in the field of an item; nothing if it is of a wrong kind or range.
std::optional<double> valueFrom(const Json& json, const NumberItem& item) {
    if (!json.is_number() || !isAllowed(item, json.get<double>())) return std::nullopt;
    return json.get<double>();
}

std::optional<double> valueFrom(const Json& json, const AngleItem& item) {
    if (json.is_string()) return parseProbeAngle(json.get_ref<const std::string&>());
    if (!json.is_number() || !isAllowed(item, json.get<double>())) return std::nullopt;
    return json.get<double>();
}

std::optional<int> valueFrom(const Json& json, const CountItem& item) {
    if (!json.is_number_integer() || !isAllowed(item, json.get<long long>())) return std::nullopt;
    return json.get<int>();
}

std::optional<std::string> valueFrom(const Json& json, const TextItem&) {
    if (!json.is_string()) return std::nullopt;
    const auto& text = json.get_ref<const std::string&>();
    return !text.empty() && text.size() <= LongestText ? std::optional(text) : std::nullopt;
}

template <typename Value>
std::optional<Value> valueFrom(const Json& json, const WordItem<Value>& item) {
    if (!json.is_string()) return std::nullopt;
    return valueOf(item.words, json.get_ref<const std::string&>());
}

// What stands in a machine file for the value of an item.
template <typename Item, typename Value>
Json jsonOf(const Item&, const Value& value) {
    return value;
}

template <typename Value>
Json jsonOf(const WordItem<Value>& item, Value value) {
    return wordFor(item.words, value);
}

// The names that may stand in the object at `parent`, which is "" or such as "/x".
std::vector<std::string> memberNames(const std::string& parent) {
    std::vector<std::string> names;
    for (const OptionItem& item : optionItems()) {
        if (!item.pointer.starts_with(parent + '/')) continue;
        const std::string_view rest = item.pointer.substr(parent.size() + 1);
        const std::string name(rest.substr(0, rest.find('/')));
        if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
    return names;
}

const OptionItem* findItem(const std::string& pointer) {
    const auto items = optionItems();
    const auto found = std::find_if(items.begin(), items.end(), [&](const OptionItem& item) {
        return item.pointer == pointer;
    });
    return found != items.end() ? &*found : nullptr;
}

std::string shownValue(const Json& value) {
    if (value.is_string()) return inQuotes(value.get_ref<const std::string&>());
    if (value.is_array()) return "a list";
    return value.is_object() ? "an object" : value.dump();
}

enum class WrongMembers { Refused, LeftOut };

class MachineReader {
public:
    MachineReader(const std::filesystem::path& file, std::string text,
                  WrongMembers wrong = WrongMembers::Refused)
        : file_(file), text_(std::move(text)), wrong_(wrong) {}

    RecordingOptions read() {
        takeObject(parseJson(file_, text_, Bounds), Pointer());
        return std::move(options_);
    }

private:
    void takeObject(const Json& object, const Pointer& pointer);
    void takeMember(const Json& value, const Pointer& pointer);
    void takeItem(const Json& value, const OptionItem& item);
    [[noreturn]] void refuse(const Json& value, const std::string& pointer,
                             const std::string& allowed) const;
    [[noreturn]] void refuseUnknown(const Pointer& pointer) const;

    std::filesystem::path file_;
    std::string text_;
    WrongMembers wrong_;
    RecordingOptions options_;
};

void MachineReader::takeObject(const Json& object, const Pointer& pointer) {
    if (!object.is_object()) refuse(object, pointer.to_string(), "an object");
    for (const auto& [name, value] : object.items()) {
        try {
            takeMember(value, pointer / name);
        } catch (const RecordingError&) {
            if (wrong_ == WrongMembers::Refused) throw;
        }
    }
}

void MachineReader::takeMember(const Json& value, const Pointer& pointer) {
    const std::string text = pointer.to_string();
    if (const OptionItem* item = findItem(text)) return takeItem(value, *item);
    if (memberNames(text).empty()) refuseUnknown(pointer);
    takeObject(value, pointer);
}

void MachineReader::takeItem(const Json& value, const OptionItem& item) {
    const auto take = [&](const auto& kind) {
        auto taken = valueFrom(value, kind);
        if (!taken) refuse(value, std::string(item.pointer), allowedText(kind));
        kind.field(options_) = std::move(taken);
    };
    std::visit(take, item.kind);
}

void MachineReader::refuse(const Json& value, const std::string& pointer,
                           const std::string& allowed) const {
    const std::string place = pointer.empty() ? "the top level" : pointer;
    throw RecordingError({file_}, shownValue(value) + " at " + place, allowed);
}

void MachineReader::refuseUnknown(const Pointer& pointer) const {
    const std::vector<std::string> names = memberNames(pointer.parent_pointer().to_string());
    throw RecordingError({file_},
                         "the unknown member " + inQuotes(pointer.to_string()) +
                             " (the nearest name is " +
                             inQuotes(nearestName(pointer.back(), names)) + ")",
                         listText(names));
}

std::optional<std::filesystem::path> namedOrBeside(const std::filesystem::path& recording,
                                                   const RecordingOptions& options) {
    const std::filesystem::path beside = machineFileOf(recording);
    std::error_code fault;  // a name that is too long for a file is that of none
    const bool found = options.machineFile || std::filesystem::exists(beside, fault);
    const std::filesystem::path machineFile = options.machineFile.value_or(beside);
    if (!found || machineFile.empty()) return std::nullopt;
    return machineFile;
}

}  // namespace

std::filesystem::path machineFileOf(const std::filesystem::path& recording) {
    std::filesystem::path file = recording;
    return file.replace_extension(".machine.json");
}

RecordingOptions readMachineFile(const std::filesystem::path& file) {
    return readMachineText(file, readSmallFile(file, LargestFile));
}

RecordingOptions readMachineText(const std::filesystem::path& file, const std::string& text) {
    return MachineReader(file, text).read();
}

RecordingOptions withMachineFile(const std::filesystem::path& recording,
                                 const RecordingOptions& options) {
    const auto machineFile = namedOrBeside(recording, options);
    return machineFile ? overlaid(readMachineFile(*machineFile), options) : options;
}

RecordingOptions withSoundItems(const std::filesystem::path& recording,
                                const RecordingOptions& options) {
    try {
        const auto machineFile = namedOrBeside(recording, options);
        if (!machineFile) return options;
        const std::string text = readSmallFile(*machineFile, LargestFile);
        return overlaid(MachineReader(*machineFile, text, WrongMembers::LeftOut).read(), options);
    } catch (const RecordingError&) {
        return options;
    }
}

std::string machineText(const RecordingOptions& options) {
    RecordingOptions source = options;
    Json json = Json::object();
    for (const OptionItem& item : optionItems()) {
        const auto put = [&](const auto& kind) {
            const auto& value = kind.field(source);
            if (value) json[Pointer(std::string(item.pointer))] = jsonOf(kind, *value);
        };
        std::visit(put, item.kind);
    }
    return json.dump(4, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace Rotavue::Workbench
