#include "plugin/orbit_control/rotavue_visual_control.h"

namespace Meridax::VisualControls::Rotavue {

bool RotavueVisualControl::canCopyToClipboard() {
    return true;
}

}  // namespace Meridax::VisualControls::Rotavue
