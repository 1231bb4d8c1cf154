#pragma once

#include "host_kit/json/bounded_json.h"

#include <cstddef>
#include <string_view>

namespace Rotavue::HostKit {

/// What a session file may have, so that none can take memory or time without bound.
struct JsonLimits {
    static constexpr std::size_t Bytes = std::size_t{64} << 20;
    static constexpr std::size_t Depth = 32;         ///< lists and objects within each other
    static constexpr std::size_t Parts = 1'000'000;  ///< texts, lists, objects and their members
};

/// Reads the text of a file as JSON. Raises `SessionError` for what is no JSON, is beyond the
/// limits, or names a member of an object twice.
Json parseJson(std::string_view text);

}  // namespace Rotavue::HostKit
