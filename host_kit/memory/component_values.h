#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace Rotavue::HostKit {

/// The numbers of a channel by component, each component a list by linear index. The components
/// that channels have are found without a search; any other number may be one as well.
class ComponentValues {
public:
    /// A list that others may hold as well; nobody changes it.
    using SharedList = std::shared_ptr<const std::vector<double>>;

    /// The list of that component, to be read and changed; made empty where there is none. One that
    /// was shared becomes a copy.
    std::vector<double>& operator[](std::int32_t component) { return slot(component).changeable(); }

    /// Lets the component have that list, which is not copied, in place of any other. Copies of
    /// these values share it, too.
    void share(std::int32_t component, SharedList list) { slot(component) = {{}, std::move(list)}; }

    /// The number at that place, or 0.0 where there is none.
    double at(std::int64_t index, std::int32_t component) const {
        const auto place = static_cast<std::uint32_t>(component);
        const std::vector<double>& list =
            (place < Direct ? direct_[place] : other(component)).get();
        const auto position = static_cast<std::uint64_t>(index);
        return position < list.size() ? list[position] : 0.0;
    }

    void erase(std::int32_t component);
    void clear() { *this = ComponentValues{}; }

private:
    static constexpr std::uint32_t Direct = 8;

    struct Slot {
        const std::vector<double>& get() const { return shared ? *shared : own; }
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
