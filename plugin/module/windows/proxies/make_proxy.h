#pragma once

#include "plugin/framework/host/ref.h"
#include "plugin/module/windows/interfaces/com_ref.h"

namespace Meridax::Host::Binary {

/// The proxy of an object for the interface of that identifier: one of the 28 of the host, or
/// `IHostObject` for any object. `object` is exactly that interface of it. Gives a pointer to
/// exactly the interface's class, retained for the caller; null where `object` is empty or the
/// interface is none of these.
void* makeProxy(const Guid& interfaceId, ComRef<IUnknown> object);

/// The same for an interface known at the call.
template <class Interface>
Ref<Interface> makeProxy(ComRef<IUnknown> object) {
    return Ref<Interface>::adopt(
        static_cast<Interface*>(makeProxy(Interface::Identifier, std::move(object))));
}

}  // namespace Meridax::Host::Binary
