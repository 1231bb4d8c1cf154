#include "host_kit/memory/channel_table.h"

namespace Rotavue::HostKit {

ChannelDescription& ChannelTable::operator[](const std::string& id) {
    Entry& entry = entries_[id];
    entry.described = true;
    return entry.record;
}

bool ChannelTable::contains(const std::string& id) const {
    const auto found = entries_.find(id);
    return found != entries_.end() && found->second.described;
}

void ChannelTable::erase(const std::string& id) {
    const auto found = entries_.find(id);
    if (found != entries_.end()) found->second = Entry{};
}

void ChannelTable::clear() {
    for (auto& [id, entry] : entries_)
        entry = Entry{};
}

}  // namespace Rotavue::HostKit
