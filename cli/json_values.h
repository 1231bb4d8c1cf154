#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace Rotavue::Cli {

using Json = nlohmann::ordered_json;

/// Null for a text that is not known.
inline Json textOrNull(const std::string& text) {
    return text.empty() ? Json() : Json(text);
}

}  // namespace Rotavue::Cli
