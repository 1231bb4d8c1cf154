#pragma once

#include "plugin/framework/host/data/host_channel.h"
#include "plugin/framework/host/data/host_collections.h"
#include "plugin/framework/host/data/host_visual_control.h"
#include "plugin/framework/host/ref.h"

#include <algorithm>
#include <cstdint>

namespace Meridax::VisualControls::Rotavue {

/// How many channels, groups or members of a group are walked through at most: far more than a
/// machine has bearings, and few enough for a host that claims to have any number of them.
inline constexpr std::int32_t MostAssigned = 4096;

/// Calls `use` with each plain channel of the control, in order. The collection is fetched anew; a
/// null channel raises 0x80004003 when its turn comes.
template <class Use>
void forEachChannel(const Host::Ref<Host::IHostVisualControl>& control, Use use) {
    const auto channels = control->getChannels();
    const std::int32_t count = std::min(channels->getCount(), MostAssigned);
    for (std::int32_t i = 0; i < count; ++i)
        use(*channels->getItem(i));
}

/// Calls `use` with each group of the control, in order. The collection is fetched anew; an object
/// that is null or no channel list raises 0x80004003 when its turn comes.
template <class Use>
void forEachGroup(const Host::Ref<Host::IHostVisualControl>& control, Use use) {
    const auto groups = control->getGroups();
    const std::int32_t count = std::min(groups->getCount(), MostAssigned);
    for (std::int32_t i = 0; i < count; ++i)
        use(*groups->getItem(i).template offered<Host::IHostChannelList>());
}

/// True when the group holds at least one channel and its orbit channel is there. One without a
/// tacho channel can be drawn by time.
inline bool isOrbitGroupUsable(Host::IHostChannelList& group) {
    return group.getCount() >= 1 && group.getItem(0);
}

/// The tacho channel of a group: item 1 of exactly two, otherwise null.
inline Host::Ref<Host::IHostChannel> tachoChannelOf(Host::IHostChannelList& group) {
    if (group.getCount() != 2) return nullptr;
    return group.getItem(1);
}

inline bool hasTachoChannel(Host::IHostChannelList& group) {
    return static_cast<bool>(tachoChannelOf(group));
}

}  // namespace Meridax::VisualControls::Rotavue
