#include "host_kit/session/json_document.h"

#include "host_kit/session/session_error.h"

#include <string>

namespace Rotavue::HostKit {

namespace {

std::string placeOf(const JsonFault& fault) {
    return "is no JSON at line " + std::to_string(fault.line) + ", column " +
           std::to_string(fault.column) + ": ";
}

std::string wrongWith(const JsonFault& fault) {
    switch (fault.kind) {
        case JsonFault::Kind::NumberBeyondBounds:
            return placeOf(fault) + "a number beyond all bounds";
        case JsonFault::Kind::TooDeep:
            return "lists and objects lie too deep";
        case JsonFault::Kind::TooManyParts:
            return "there are too many texts, lists and objects";
        case JsonFault::Kind::RepeatedMember:
            return "the member " + inQuotes(fault.detail) + " is there twice";
        case JsonFault::Kind::NoJson:
            break;
    }
    return placeOf(fault) + fault.detail;
}

}  // namespace

Json parseJson(std::string_view text) {
    if (text.size() > JsonLimits::Bytes) throw SessionError("", "the file is longer than 64 MiB");
    try {
        return parseBounded(text, {JsonLimits::Depth, JsonLimits::Parts}, RepeatedMembers::Refused);
    } catch (const JsonFault& fault) {
        throw SessionError(fault.pointer, wrongWith(fault));
    }
}

}  // namespace Rotavue::HostKit
