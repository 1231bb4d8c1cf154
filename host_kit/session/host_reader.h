#pragma once

#include "host_kit/memory/memory_host.h"
#include "host_kit/session/field.h"

#include <set>
#include <string>
#include <vector>

namespace Rotavue::HostKit {

/// Reads the description of a session file into a memory host: first the whole, then patches, which
/// are merged into it as JSON Merge Patch (RFC 7396) has it. A description that assigns a channel
/// which it does not describe is refused.
///
/// Only what a patch names is looked at, so that many small patches over a large description stay
/// cheap.
class HostReader {
public:
    explicit HostReader(MemoryHost& host) : host_(host) {}

    /// Reads the file's object; its `title` and `steps` are left to the caller.
    void readSession(const Field& session);

    /// Merges a patch.
    void readPatch(const Field& patch);

    MemoryHost& host() const { return host_; }

private:
    friend struct HostRows;

    using Ids = std::set<std::string>;

    void readChannels(const Field& channels);
    void clearChannels();
    void readAssignedChannels(const Field& items);
    void readAssignedGroups(const Field& groups);
    void readAssignedSlots(const Field& slots);
    void readHidden(const Field& names);
    void readNulls(const Field& operations);
    ChannelItem readItem(const Field& item, Ids& assigned) const;
    void needAssignedDescribed(const Field& whole) const;

    MemoryHost& host_;
    Ids inChannels_;  ///< the ids in the assigned channels
    Ids inGroups_;    ///< likewise in the groups
    Ids takenAway_;   ///< described before the patch that is being read, and not after it
};

}  // namespace Rotavue::HostKit
