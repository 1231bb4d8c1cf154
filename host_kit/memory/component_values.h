#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace Rotavue::HostKit {

/// The numbers of a channel by component, each component a list by linear index. The components
/// that channels have are found without a search; any other number may be one as well.
class ComponentValues {
public:
    /// The list of that component, made empty where there is none.
    std::vector<double>& operator[](std::int32_t component) {
        const auto place = static_cast<std::uint32_t>(component);
        return place < Direct ? direct_[place] : others_[component];
    }

    /// The number at that place, or 0.0 where there is none.
    double at(std::int64_t index, std::int32_t component) const {
        const auto place = static_cast<std::uint32_t>(component);
        const std::vector<double>& list = place < Direct ? direct_[place] : other(component);
        const auto position = static_cast<std::uint64_t>(index);
        return position < list.size() ? list[position] : 0.0;
    }

    void erase(std::int32_t component);
    void clear() { *this = ComponentValues{}; }

private:
    static constexpr std::uint32_t Direct = 8;

    const std::vector<double>& other(std::int32_t component) const;

    std::array<std::vector<double>, Direct> direct_;
    std::map<std::int32_t, std::vector<double>> others_;
};

}  // namespace Rotavue::HostKit
