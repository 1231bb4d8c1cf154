#pragma once

#include "host_kit/memory/memory_host.h"
#include "host_kit/windows/com_object.h"
#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/interfaces/platform_guid.h"
#include "plugin/module/windows/interfaces/virtual_table.h"

#include <utility>

/// A memory host as a caller of the component model sees it.
namespace Rotavue::HostKit {

namespace Binary = Host::Binary;

template <class Interface>
Binary::ComRef<IDispatch> handedOut(Host::Ref<Interface> object) {
    return Binary::ComRef<IDispatch>::adopt(ComObject::handOut(std::move(object)));
}

/// The object's interface of that class.
template <class Interface>
Binary::ComRef<IDispatch> asked(IUnknown* object) {
    return Binary::queried<IDispatch>(object, Binary::platformGuid(Interface::Identifier));
}

/// Calls the operation through its slot.
template <auto Member, class... Arguments>
std::uint32_t callSlot(const Binary::ComRef<IDispatch>& object, Arguments... arguments) {
    const auto function = Binary::functionOf<Binary::OperationOf<Member>>(object.get());
    return static_cast<std::uint32_t>(function(object.get(), arguments...));
}

}  // namespace Rotavue::HostKit
