#pragma once

#include "host_kit/memory/channel_description.h"

#include <map>
#include <string>

namespace Rotavue::HostKit {

/// The described channels by id. A record never moves and never ends before the table does, since
/// channel objects point to it: one that is erased goes back to the defaults.
class ChannelTable {
public:
    ChannelTable() = default;
    ChannelTable(const ChannelTable&) = delete;
    ChannelTable& operator=(const ChannelTable&) = delete;

    /// The record of that channel, which is described from now on.
    ChannelDescription& operator[](const std::string& id);

    /// The record of that channel, described or not.
    ChannelDescription& record(const std::string& id) { return entries_[id].record; }

    bool contains(const std::string& id) const;
    void erase(const std::string& id);
    void clear();

private:
    struct Entry {
        ChannelDescription record;
        bool described = false;
    };

    std::map<std::string, Entry> entries_;
};

}  // namespace Rotavue::HostKit
