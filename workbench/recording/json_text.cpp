#include "workbench/recording/json_text.h"

#include <string>

#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

using HostKit::JsonFault;

constexpr const char* Allowed = "a JSON object";

RecordingError errorOf(const std::filesystem::path& file, std::string_view text,
                       const JsonFault& fault) {
    const std::string found =
        fault.byte < text.size() ? inQuotes(text.substr(fault.byte, 1)) : "the end of the file";
    return {{file, fault.line, fault.column}, found, Allowed};
}

}  // namespace

nlohmann::json parseJson(const std::filesystem::path& file, std::string_view text,
                         const JsonBounds& bounds) {
    try {
        return HostKit::parseBounded(text, bounds, HostKit::RepeatedMembers::LastHolds);
    } catch (const JsonFault& fault) {
        if (fault.kind == JsonFault::Kind::NoJson) throw errorOf(file, text, fault);
        if (fault.kind == JsonFault::Kind::TooDeep)
            throw RecordingError({file}, "values nested too deep",
                                 std::to_string(bounds.depth) + " levels");
        if (fault.kind == JsonFault::Kind::TooManyParts)
            throw RecordingError({file}, "too many lists, objects and texts",
                                 "at most " + std::to_string(bounds.parts));
        throw RecordingError({file}, "a number beyond all bounds", Allowed);
    }
}

}  // namespace Rotavue::Workbench
