#pragma once

#include "plugin/framework/host/guid.h"
#include "plugin/module/windows/platform_headers.h"

namespace Meridax::Host::Binary {

/// What follows every call of the host. A failure raises `HostError` with the status, the interface
/// and what the object tells of it, where it says that it tells of that interface; every other
/// status is success.
void raiseIfCallFailed(HRESULT result, IUnknown* object, const Guid& calledInterface);

}  // namespace Meridax::Host::Binary
