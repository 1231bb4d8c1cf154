#include "host_kit/memory/component_values.h"

namespace Rotavue::HostKit {

void ComponentValues::erase(std::int32_t component) {
    const auto place = static_cast<std::uint32_t>(component);
    if (place < Direct) {
        direct_[place].clear();
    } else {
        others_.erase(component);
    }
}

const std::vector<double>& ComponentValues::other(std::int32_t component) const {
    static const std::vector<double> None;
    const auto found = others_.find(component);
    return found == others_.end() ? None : found->second;
}

}  // namespace Rotavue::HostKit
