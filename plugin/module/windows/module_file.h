#pragma once

#include "plugin/module/windows/platform_headers.h"

#include <string>

namespace Meridax::VisualControls::Rotavue {

/// The file from which a module was loaded: its full path, cut at 2,048 characters; empty where the
/// platform does not tell.
std::wstring moduleFile(HINSTANCE module);

}  // namespace Meridax::VisualControls::Rotavue
