#pragma once

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <filesystem>
#include <string_view>

namespace Rotavue::Workbench {

/// What a JSON file of unknown origin may hold, so that none takes memory without bound. Its plain
/// numbers are bounded by its size alone.
struct JsonBounds {
    std::size_t depth;  ///< lists and objects within each other
    std::size_t parts;  ///< lists, objects, texts and the names of members
};

/// The JSON of a text, in a time that grows as the text does. Throws RecordingError that names line
/// and column for a text that is none, and one that names the bound for a text beyond it. Of
/// members of one name the last one holds.
nlohmann::json parseJson(const std::filesystem::path& file, std::string_view text,
                         const JsonBounds& bounds);

}  // namespace Rotavue::Workbench
