#pragma once

#include "plugin/framework/visual_control.h"

#include <memory>

namespace Meridax::VisualControls::Rotavue {

/// Makes the control that this module carries.
std::unique_ptr<Api::VisualControl> makeControl();

}  // namespace Meridax::VisualControls::Rotavue
