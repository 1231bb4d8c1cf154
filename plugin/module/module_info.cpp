#include "plugin/module/module_info.h"

#include "plugin/framework/plugin_interfaces.h"

namespace Meridax::VisualControls::Rotavue {

ModuleInfo rotavueModuleInfo() {
    ModuleInfo info;
    info.displayName = "Rotavue";
    info.vendor = "Meridax";
    info.version = {ROTAVUE_VERSION};
    info.keyName = "Rotavue";
    info.classId = Api::PluginClass;
    info.control.hostIconName = "orbit_graph";
    info.control.groupName = "Machinery diagnostics";
    info.control.description =
        "Shows the x-y scope with an option to rotate x and y axis. It is mainly used for "
        "displaying the axis movement in DSA analysis.";
    info.control.keywords = "machinery diagnostics, orbit";
    info.control.maxParameters = 8;
    info.control.width = 400;
    info.control.height = 300;
    info.control.extendOnAdd = true;
    info.control.hasUnifiedProps = true;
    return info;
}

}  // namespace Meridax::VisualControls::Rotavue
