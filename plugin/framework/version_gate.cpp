#include "plugin/framework/version_gate.h"

#include "plugin/framework/host/status.h"

namespace Meridax::VisualControls::Api {

std::int32_t passVersionGate(Host::Ref<Host::IHostApp> hostApp) {
    if (isRecentEnough(hostApp->getVersion())) return Host::Status::asResult(Host::Status::Ok);
    hostApp->showMessage(L"Custom Visual Control needs Meridax R3 SP8 or newer.");
    return Host::Status::asResult(Host::Status::Abort);
}

}  // namespace Meridax::VisualControls::Api
