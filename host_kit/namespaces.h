#pragma once

namespace Meridax::Host {}
namespace Meridax::VisualControls::Api {}

namespace Rotavue::HostKit {

namespace Host = Meridax::Host;
namespace Api = Meridax::VisualControls::Api;

}  // namespace Rotavue::HostKit
