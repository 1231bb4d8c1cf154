#include "host_kit/session/host_reader.h"

#include "host_kit/session/member_table.h"
#include "host_kit/session/session_error.h"

#include <array>

namespace Rotavue::HostKit {

/// The members of a session file and of a patch. Channels come before the assignment that names
/// them.
struct HostRows {
    using Row = MemberRow<HostReader>;

    static HostDescription& description(HostReader& reader) { return reader.host_.description; }

    static constexpr std::array<Row, 3> Assigned{{
        {"channels", [](auto& field, auto& reader) { reader.readAssignedChannels(field); },
         [](auto& reader) {
             description(reader).assigned.channels.clear();
             reader.inChannels_.clear();
         }},
        {"groups", [](auto& field, auto& reader) { reader.readAssignedGroups(field); },
         [](auto& reader) {
             description(reader).assigned.groups.clear();
             reader.inGroups_.clear();
         }},
        {"slots", [](auto& field, auto& reader) { reader.readAssignedSlots(field); },
         [](auto& reader) { description(reader).assigned.slots.clear(); }},
    }};

    static constexpr std::array<Row, 1> Panel{{
        {"hidden", [](auto& field, auto& reader) { reader.readHidden(field); },
         [](auto& reader) { description(reader).panel.hidden.clear(); }},
    }};

    template <std::size_t Count>
    static void resetAll(HostReader& reader, const std::array<Row, Count>& rows) {
        for (const Row& row : rows)
            row.reset(reader);
    }

    static constexpr std::array<Row, 9> Session{{
        {"title", [](auto& field, auto&) { field.utf8(); }, [](auto&) {}},
        {"host", [](auto& field, auto& reader) { readInto(field, description(reader).host); },
         [](auto& reader) { description(reader).host = {}; }},
        {"channels", [](auto& field, auto& reader) { reader.readChannels(field); },
         [](auto& reader) { reader.clearChannels(); }},
        {"assigned", [](auto& field, auto& reader) { readMembers(field, reader, Assigned); },
         [](auto& reader) { resetAll(reader, Assigned); }},
        {"canvas", [](auto& field, auto& reader) { readInto(field, description(reader).canvas); },
         [](auto& reader) { description(reader).canvas = {}; }},
        {"setup", [](auto& field, auto& reader) { readInto(field, description(reader).setup); },
         [](auto& reader) { description(reader).setup.clear(); }},
        {"panel", [](auto& field, auto& reader) { readMembers(field, reader, Panel); },
         [](auto& reader) { resetAll(reader, Panel); }},
        {"nulls", [](auto& field, auto& reader) { reader.readNulls(field); },
         [](auto& reader) { reader.host_.gate.setNulls({}); }},
        {"steps", [](auto&, auto&) {}, [](auto&) {}},
    }};

    static MemberRows<HostReader> patch() { return MemberRows<HostReader>(Session).subspan(1, 7); }
};

void HostReader::readSession(const Field& session) {
    readMembers(session, *this, HostRows::Session);
}

void HostReader::readPatch(const Field& patch) {
    takenAway_.clear();
    readMembers(patch, *this, HostRows::patch());
    needAssignedDescribed(patch);
}

void HostReader::readChannels(const Field& channels) {
    channels.eachMember([&](const std::string& id, const Field& channel) {
        if (!channel.takesAway()) return readInto(channel, host_.description.channels[id]);
        takenAway_.insert(id);
        host_.description.channels.erase(id);
    });
}

void HostReader::clearChannels() {
    takenAway_ = host_.description.channels.ids();
    host_.description.channels.clear();
}

void HostReader::readAssignedChannels(const Field& items) {
    auto& channels = host_.description.assigned.channels;
    channels.clear();
    inChannels_.clear();
    items.eachItem([&](const Field& item) { channels.push_back(readItem(item, inChannels_)); });
}

void HostReader::readAssignedGroups(const Field& groups) {
    auto& described = host_.description.assigned.groups;
    described.clear();
    inGroups_.clear();
    groups.eachItem([&](const Field& field) {
        GroupDescription group;
        needMembersAmong(field, std::to_array<std::string_view>({"channels", "properties"}));
        field.ifThere("channels", [&](const Field& items) {
            items.eachItem(
                [&](const Field& item) { group.channels.push_back(readItem(item, inGroups_)); });
        });
        field.ifThere("properties", [&](const Field& texts) { readInto(texts, group.properties); });
        described.push_back(std::move(group));
    });
}

void HostReader::readAssignedSlots(const Field& slots) {
    auto& described = host_.description.assigned.slots;
    described.clear();
    slots.eachItem([&](const Field& field) {
        constexpr std::array<MemberRow<SlotDescription>, 1> Rows{
            row<&SlotDescription::kind>("kind")};
        readMembers(field, described.emplace_back(), Rows);
    });
}

void HostReader::readHidden(const Field& names) {
    auto& hidden = host_.description.panel.hidden;
    hidden.clear();
    names.eachItem([&](const Field& name) { hidden.insert(name.text()); });
}

void HostReader::readNulls(const Field& operations) {
    Operations nulls;
    operations.eachItem([&](const Field& name) {
        const auto found = findOperation(name.utf8());
        if (!found || rowOf(*found).answer != Answer::Object) {
            name.refuse("an operation that gives an object, such as \"IHostApp.getData\"");
        }
        nulls.set(indexOf(*found));
    });
    host_.gate.setNulls(nulls);
}

ChannelItem HostReader::readItem(const Field& item, Ids& assigned) const {
    if (item.isNull()) return std::nullopt;
    const std::string& id = item.utf8();
    if (!host_.description.channels.contains(id))
        item.refuse("null or the id of a described channel");
    assigned.insert(id);
    return id;
}

void HostReader::needAssignedDescribed(const Field& whole) const {
    for (const std::string& id : takenAway_) {
        if (!inChannels_.contains(id) && !inGroups_.contains(id)) continue;
        whole.refuseBecause("takes away the channel " + inQuotes(id) + ", which is still assigned");
    }
}

}  // namespace Rotavue::HostKit
