#pragma once

#include "host_kit/session/field.h"
#include "host_kit/session/field_readers.h"

#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Rotavue::HostKit {

/// One member that an object of a session file may have: how it is read into a record, and how it
/// goes back to its default when a patch takes it away.
template <class Record>
struct MemberRow {
    std::string_view name;
    void (*read)(const Field&, Record&);
    void (*reset)(Record&);
};

template <class Record, class Value>
Record recordOf(Value Record::*);

/// The row of a member that a record holds under a field of its own.
template <auto Pointer>
constexpr auto row(std::string_view name) {
    using Record = decltype(recordOf(Pointer));
    return MemberRow<Record>{
        name,
        [](const Field& field, Record& record) { readInto(field, record.*Pointer); },
        [](Record& record) { record.*Pointer = Record().*Pointer; },
    };
}

template <class Record>
using MemberRows = std::span<const MemberRow<Record>>;

/// Refuses an object with a member that is not among those.
void needMembersAmong(const Field& object, std::span<const std::string_view> names);

/// Reads an object into a record, member by member in the order of the rows, and refuses a member
/// that no row names. What the object does not name stays as it is.
template <class Record>
void readMembers(const Field& object, Record& record,
                 std::type_identity_t<MemberRows<Record>> rows) {
    std::vector<std::string_view> names;
    for (const MemberRow<Record>& row : rows)
        names.push_back(row.name);
    needMembersAmong(object, names);
    for (const MemberRow<Record>& row : rows) {
        object.ifThere(row.name, [&](const Field& member) {
            member.takesAway() ? row.reset(record) : row.read(member, record);
        });
    }
}

}  // namespace Rotavue::HostKit
