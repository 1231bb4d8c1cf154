#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace Rotavue::HostKit {

using Json = nlohmann::json;

/// What a JSON text of unknown origin may hold, so that none takes memory or time without bound.
/// Its plain numbers are bounded by its size alone.
struct JsonBounds {
    std::size_t depth;  ///< lists and objects within each other
    std::size_t parts;  ///< lists, objects, texts and the names of members
};

/// What becomes of a member whose name its object has had before.
enum class RepeatedMembers { Refused, LastHolds };

/// Why a text is not taken, and where. The reader of a file puts it into words of its own.
struct JsonFault : std::exception {
    enum class Kind {
        NoJson,
        NumberBeyondBounds,
        TooDeep,
        TooManyParts,
        RepeatedMember,
    };

    const char* what() const noexcept override { return "the text is not taken as JSON"; }

    Kind kind = Kind::NoJson;
    std::string pointer;     ///< JSON pointer of the list or object that is open there
    std::size_t byte = 0;    ///< what is no JSON begins there, from 0; the text's length: its end
    std::size_t line = 1;    ///< of that byte, from 1
    std::size_t column = 1;  ///< likewise, in bytes. NoJson and NumberBeyondBounds have a place
    std::string detail;      ///< NoJson: the parser's reason; RepeatedMember: the member's name
};

/// The JSON of a text, in a time that grows as the text does. Throws JsonFault.
Json parseBounded(std::string_view text, const JsonBounds& bounds, RepeatedMembers repeated);

}  // namespace Rotavue::HostKit
