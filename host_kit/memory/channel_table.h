#pragma once

#include "host_kit/memory/channel_description.h"

#include <map>
#include <set>
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
    ChannelDescription& record(const std::string& id) { return records_[id]; }

    bool contains(const std::string& id) const { return described_.contains(id); }
    const std::set<std::string>& ids() const { return described_; }
    void erase(const std::string& id);
    void clear();

private:
    std::map<std::string, ChannelDescription> records_;
    std::set<std::string> described_;
};

}  // namespace Rotavue::HostKit
