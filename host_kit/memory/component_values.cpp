#include "host_kit/memory/component_values.h"

namespace Rotavue::HostKit {

void ComponentValues::erase(std::int32_t component) {
    const auto place = static_cast<std::uint32_t>(component);
    if (place < Direct) {
        direct_[place] = {};
    } else {
        others_.erase(component);
    }
}

std::vector<double>& ComponentValues::Slot::changeable() {
    if (!shared) return own;
    std::vector<double> copy(shared->size());
    for (std::size_t i = 0; i < copy.size(); ++i)
        copy[i] = shared->at(i);
    shared.reset();
    return own = std::move(copy);
}

const ComponentValues::Slot& ComponentValues::other(std::int32_t component) const {
    static const Slot None;
    const auto found = others_.find(component);
    return found == others_.end() ? None : found->second;
}

}  // namespace Rotavue::HostKit
