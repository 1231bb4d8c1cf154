#include "host_kit/memory/channel_table.h"

namespace Rotavue::HostKit {

ChannelDescription& ChannelTable::operator[](const std::string& id) {
    described_.insert(id);
    return records_[id];
}

void ChannelTable::erase(const std::string& id) {
    if (described_.erase(id) > 0) records_[id] = {};
}

void ChannelTable::clear() {
    for (const std::string& id : described_)
        records_[id] = {};
    described_.clear();
}

}  // namespace Rotavue::HostKit
