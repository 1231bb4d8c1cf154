#pragma once

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Rotavue::Workbench {

/// A value in a JSON file of unknown origin, and where it stands. What it is asked for it gives, or
/// throws RecordingError that names the file, the place as a JSON pointer, what was found and what
/// is allowed. The JSON must outlive it.
class JsonPlace {
public:
    JsonPlace(const std::filesystem::path& file, const nlohmann::json& value,
              std::string pointer = {})
        : file_(&file), value_(&value), pointer_(std::move(pointer)) {}

    const nlohmann::json& value() const { return *value_; }

    double number(double least, double most) const;
    std::string text(std::size_t longest) const;

    /// The number of the word in the list.
    std::size_t word(std::initializer_list<std::string_view> words) const;

    /// The elements, from `least` to `most` of them.
    std::vector<JsonPlace> list(std::size_t least, std::size_t most) const;

    /// Refuses what is no object or has another member than these.
    void checkMembers(std::initializer_list<std::string_view> names) const;

    /// The members with their names, at most so many.
    std::vector<std::pair<std::string, JsonPlace>> members(std::size_t most) const;

    /// A member of an object; nothing where there is none.
    std::optional<JsonPlace> find(std::string_view name) const;

    /// A member that must be there.
    JsonPlace at(std::string_view name) const;

    [[noreturn]] void refuse(std::string_view allowed) const;

private:
    JsonPlace inner(const nlohmann::json& value, std::string_view name) const;

    const std::filesystem::path* file_;
    const nlohmann::json* value_;
    std::string pointer_;
};

}  // namespace Rotavue::Workbench
