#include "host_kit/session/member_table.h"

#include <algorithm>
#include <string>

namespace Rotavue::HostKit {

void needMembersAmong(const Field& object, std::span<const std::string_view> names) {
    object.eachMember([&](const std::string& name, const Field& member) {
        if (std::find(names.begin(), names.end(), name) != names.end()) return;
        std::string allowed;
        for (const std::string_view known : names)
            allowed.append(allowed.empty() ? "" : ", ").append(known);
        member.refuseBecause("is unknown here; allowed: " + allowed);
    });
}

}  // namespace Rotavue::HostKit
