#include "host_kit/memory/memory_properties.h"

namespace Rotavue::HostKit {

MemoryProperties::MemoryProperties(MemoryHost& host, Source source)
    : LastingObject(host), source_(std::move(source)) {}

std::wstring MemoryProperties::getValue(const std::wstring& propertyName) {
    return call(
        operation("IHostProperties.getValue"),
        [&]() -> std::wstring {
            const auto* texts = source_();
            if (texts == nullptr) return {};
            const auto found = texts->find(propertyName);
            return found != texts->end() ? found->second : std::wstring();
        },
        propertyName);
}

}  // namespace Rotavue::HostKit
