#pragma once

#include "host_kit/namespaces.h"
#include "plugin/framework/host/guid.h"
#include "plugin/module/windows/interfaces/virtual_table.h"

namespace Rotavue::HostKit {

/// The virtual table of the host's objects for the interface of that identifier; for the identity
/// one that has the common operations. Null where it is none of the host's interfaces.
const Host::Binary::Entry* hostTableOf(const Host::Guid& identifier);

}  // namespace Rotavue::HostKit
