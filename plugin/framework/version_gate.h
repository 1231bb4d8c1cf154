#pragma once

#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>

namespace Meridax::VisualControls::Api {

/// True from 3.8 build 19051300 on.
constexpr bool isRecentEnough(const Host::HostVersion& version) {
    if (version.major != 3) return version.major > 3;
    if (version.minor != 8) return version.minor > 8;
    return version.build >= 19051300;
}

/// The only check of the host, made when it attaches: gives 0, or shows the refusal to the user and
/// gives 0x80004004. Raises 0x80004003 without a host.
std::int32_t passVersionGate(Host::Ref<Host::IHostApp> hostApp);

}  // namespace Meridax::VisualControls::Api
