#include "plugin/module/control_maker.h"

#include "plugin/orbit_control/rotavue_visual_control.h"

namespace Meridax::VisualControls::Rotavue {

// The one line that ties the framework to the control that it carries.
std::unique_ptr<Api::VisualControl> makeControl() {
    return std::make_unique<RotavueVisualControl>();
}

}  // namespace Meridax::VisualControls::Rotavue
