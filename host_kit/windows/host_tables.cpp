#include "host_kit/windows/host_tables.h"

#include "host_kit/windows/host_operations.h"
#include "plugin/module/windows/interfaces/operations.h"

namespace Rotavue::HostKit {

namespace {

template <class Interface>
const Binary::Entry* table() {
    static const Binary::VirtualTable<Interface> Made =
        Binary::makeVirtualTable<Interface, HostFunctions>();
    return Made.data();
}

}  // namespace

const Binary::Entry* hostTableOf(const Host::Guid& identifier) {
    // The common operations stand in front of those of any interface.
    if (identifier == Host::IHostObject::Identifier) return table<Host::IHostAxisList>();
    const Binary::Entry* found = nullptr;
    Binary::forEachInterface([&]<class Interface>(std::type_identity<Interface>) {
        if (identifier == Interface::Identifier) found = table<Interface>();
    });
    return found;
}

}  // namespace Rotavue::HostKit
