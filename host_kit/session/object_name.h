#pragma once

#include "host_kit/memory/memory_host.h"
#include "plugin/framework/host/ref.h"

#include <optional>
#include <string>
#include <string_view>

namespace Rotavue::HostKit {

/// An object by the name that sessions and logs give it: "canvas", "channel:orbit", "group:0",
/// "widget:TickCount".
class ObjectName {
public:
    /// The name that a text spells; nothing where it is none.
    static std::optional<ObjectName> parse(std::string_view text);

    /// The forms that a name can have, for messages.
    static std::string_view allowed();

    /// True when the description has the channel or group; other objects are always there.
    bool isDescribedBy(const HostDescription& description) const;

    Host::Ref<Host::IHostObject> in(MemoryHost& host) const;

private:
    using Finder = Host::Ref<Host::IHostObject> (*)(MemoryHost&, const std::string& which);
    struct Row;
    static const Row* rowOf(std::string_view kind);

    ObjectName(const Row& row, std::string which) : row_(&row), which_(std::move(which)) {}

    const Row* row_;
    std::string which_;  ///< the part behind the colon
};

}  // namespace Rotavue::HostKit
