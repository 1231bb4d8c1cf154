#pragma once

#include "host_kit/json/bounded_json.h"

#include <filesystem>
#include <string_view>

namespace Rotavue::Workbench {

using HostKit::JsonBounds;

/// The JSON of a text, in a time that grows as the text does. Throws RecordingError that names line
/// and column for a text that is none, and one that names the bound for a text beyond it. Of
/// members of one name the last one holds.
nlohmann::json parseJson(const std::filesystem::path& file, std::string_view text,
                         const JsonBounds& bounds);

}  // namespace Rotavue::Workbench
