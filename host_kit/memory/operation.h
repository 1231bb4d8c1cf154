#pragma once

#include "host_kit/memory/operation_table.h"
#include "host_kit/namespaces.h"
#include "plugin/framework/host/guid.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace Rotavue::HostKit {

inline constexpr std::size_t OperationCount = OperationTable.size();
inline constexpr std::size_t CallGroupCount = CallGroupNames.size();

/// An operation of the host, by its place in `OperationTable`.
enum class Operation : std::uint8_t {};

using CallGroups = std::bitset<CallGroupCount>;
using Operations = std::bitset<OperationCount>;

static_assert(OperationCount <= 256);

constexpr std::size_t indexOf(Operation operation) {
    return static_cast<std::size_t>(operation);
}

constexpr const OperationRow& rowOf(Operation operation) {
    return OperationTable[indexOf(operation)];
}

/// The operation of that name, such as "IHostApp.getData"; nothing where there is none.
constexpr std::optional<Operation> findOperation(std::string_view name) {
    for (std::size_t i = 0; i < OperationCount; ++i) {
        if (OperationTable[i].name == name) return static_cast<Operation>(i);
    }
    return std::nullopt;
}

/// The same for a name in the source: a slip does not compile.
consteval Operation operation(std::string_view name) {
    return findOperation(name).value();
}

/// "IHostApp" of "IHostApp.getData".
constexpr std::string_view interfaceNameOf(Operation operation) {
    const std::string_view name = rowOf(operation).name;
    return name.substr(0, name.find('.'));
}

/// The identifier of the interface to which the operation belongs.
Host::Guid interfaceOf(Operation operation);

/// The name of the host interface with that identifier; nothing where it is none of the 28.
std::optional<std::string_view> interfaceName(const Host::Guid& identifier);

/// A set of groups from its members: `groups({CallGroup::Draw, CallGroup::Panel})`.
CallGroups groups(std::initializer_list<CallGroup> members);

/// All of them.
CallGroups allGroups();

/// What a log shows unless it is told otherwise: the drawing, the panel, the setup and the control,
/// but neither measuring nor data.
CallGroups defaultGroups();

}  // namespace Rotavue::HostKit
