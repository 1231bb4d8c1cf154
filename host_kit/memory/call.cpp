#include "host_kit/memory/call.h"

#include <cstdio>

namespace Rotavue::HostKit {

std::string toText(const Call& call) {
    std::string text(rowOf(call.operation).name);
    if (call.on) {
        text.push_back('[');
        const auto* name = std::get_if<std::string>(&call.on->value);
        name != nullptr ? text.append(*name) : (appendJson(text, *call.on), text);
        text.push_back(']');
    }
    appendList(text, call.arguments, "()");
    if (call.result) appendJson(text.append(" -> "), *call.result);
    if (call.failed) text.append(" failed ").append(statusText(*call.failed));
    return text;
}

std::string statusText(std::uint32_t status) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(status));
    return text;
}

}  // namespace Rotavue::HostKit
