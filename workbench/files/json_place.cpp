#include "workbench/files/json_place.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "workbench/recording/nearest_name.h"
#include "workbench/recording/option_items.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

using Json = nlohmann::json;

std::string shown(const Json& value) {
    if (value.is_string()) return inQuotes(value.get_ref<const std::string&>());
    if (value.is_array()) return "a list of " + std::to_string(value.size());
    return value.is_object() ? "an object" : value.dump();
}

std::string countText(std::size_t least, std::size_t most) {
    return std::to_string(least) + " to " + std::to_string(most);
}

}  // namespace

double JsonPlace::number(double least, double most) const {
    const bool taken =
        value_->is_number() && value_->get<double>() >= least && value_->get<double>() <= most;
    if (!taken) refuse("a number from " + numberText(least) + " to " + numberText(most));
    return value_->get<double>();
}

std::string JsonPlace::text(std::size_t longest) const {
    const bool taken = value_->is_string() &&
                       value_->get_ref<const std::string&>().size() <= longest &&
                       value_->get_ref<const std::string&>().find('\0') == std::string::npos;
    if (!taken) refuse("a text of at most " + std::to_string(longest) + " characters");
    return value_->get<std::string>();
}

std::size_t JsonPlace::word(std::initializer_list<std::string_view> words) const {
    if (value_->is_string()) {
        const auto found =
            std::find(words.begin(), words.end(), value_->get_ref<const std::string&>());
        if (found != words.end()) return static_cast<std::size_t>(found - words.begin());
    }
    refuse(listText(std::vector<std::string>(words.begin(), words.end())));
}

std::vector<JsonPlace> JsonPlace::list(std::size_t least, std::size_t most) const {
    const bool taken = value_->is_array() && value_->size() >= least && value_->size() <= most;
    if (!taken) refuse("a list of " + countText(least, most));
    std::vector<JsonPlace> places;
    for (std::size_t i = 0; i < value_->size(); ++i)
        places.push_back(inner((*value_)[i], std::to_string(i)));
    return places;
}

void JsonPlace::checkMembers(std::initializer_list<std::string_view> names) const {
    const std::vector<std::string> allowed(names.begin(), names.end());
    if (!value_->is_object()) refuse("an object with " + listText(allowed));
    for (const auto& [name, value] : value_->items()) {
        const bool known = std::find(allowed.begin(), allowed.end(), name) != allowed.end();
        if (known) continue;
        throw RecordingError({*file_},
                             "the unknown member " + inQuotes(pointer_ + '/' + name) +
                                 " (the nearest name is " + inQuotes(nearestName(name, allowed)) +
                                 ")",
                             listText(allowed));
    }
}

std::vector<std::pair<std::string, JsonPlace>> JsonPlace::members(std::size_t most) const {
    const bool taken = value_->is_object() && value_->size() <= most;
    if (!taken) refuse("an object of at most " + std::to_string(most) + " members");
    std::vector<std::pair<std::string, JsonPlace>> places;
    for (const auto& [name, value] : value_->items())
        places.emplace_back(name, inner(value, name));
    return places;
}

std::optional<JsonPlace> JsonPlace::find(std::string_view name) const {
    const auto found = value_->find(std::string(name));
    if (found == value_->end()) return std::nullopt;
    return inner(*found, name);
}

JsonPlace JsonPlace::at(std::string_view name) const {
    const auto found = find(name);
    if (!found) refuse("one with the member " + inQuotes(name));
    return *found;
}

void JsonPlace::refuse(std::string_view allowed) const {
    const std::string place = pointer_.empty() ? "the top level" : pointer_;
    throw RecordingError({*file_}, shown(*value_) + " at " + place, allowed);
}

JsonPlace JsonPlace::inner(const Json& value, std::string_view name) const {
    return {*file_, value, pointer_ + '/' + std::string(name)};
}

}  // namespace Rotavue::Workbench
