#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "host_kit/memory/value_list.h"

namespace Rotavue::HostKit {

/// The numbers of a channel by component, each component a list by linear index. The components
/// that channels have are found without a search; any other number may be one as well.
class ComponentValues {
public:
    /// A list that others may hold as well; nobody changes it.
    using SharedList = std::shared_ptr<const ValueList>;

    /// The list of that component, to be read and changed; made empty where there is none. One that
    /// was shared becomes a copy.
    std::vector<double>& operator[](std::int32_t component) { return slot(component).changeable(); }

    /// Lets the component have that list, which is not copied, in place of any other. Copies of
    /// these values share it, too.
    void share(std::int32_t component, SharedList list) { slot(component) = {{}, std::move(list)}; }

    /// The number at that place, or 0.0 where there is none.
    double at(std::int64_t index, std::int32_t component) const {
        const auto place = static_cast<std::uint32_t>(component);
        return (place < Direct ? direct_[place] : other(component))
            .at(static_cast<std::uint64_t>(index));
    }

    void erase(std::int32_t component);
    void clear() { *this = ComponentValues{}; }

private:
    static constexpr std::uint32_t Direct = 8;

    struct Slot {
        double at(std::uint64_t place) const {
            if (shared) return place < shared->size() ? shared->at(place) : 0.0;
            return place < own.size() ? own[place] : 0.0;
        }
        std::vector<double>& changeable();

        std::vector<double> own;
        SharedList shared;  ///< in place of `own`, where it is set
    };

    Slot& slot(std::int32_t component) {
        const auto place = static_cast<std::uint32_t>(component);
        return place < Direct ? direct_[place] : others_[component];
    }
    const Slot& other(std::int32_t component) const;

    std::array<Slot, Direct> direct_;
    std::map<std::int32_t, Slot> others_;
};

}  // namespace Rotavue::HostKit
