#pragma once

#include "plugin/framework/host/guid.h"
#include "plugin/framework/visual_control_info.h"

#include <array>
#include <string>

namespace Meridax::VisualControls::Rotavue {

/// What a module announces of its control. Texts are UTF-8.
struct ModuleInfo {
    std::string displayName;
    std::string vendor;
    std::array<int, 3> version{};
    std::string keyName;  ///< of the key below `SOFTWARE\Meridax\VCs\`
    Host::Guid classId;
    Api::VisualControlInfo control;
};

/// The announcement of the orbit control.
ModuleInfo rotavueModuleInfo();

}  // namespace Meridax::VisualControls::Rotavue
