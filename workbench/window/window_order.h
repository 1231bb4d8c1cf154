#pragma once

#include "workbench/recording/recording_options.h"
#include "workbench/scene/curve_request.h"

#include <optional>
#include <string>
#include <vector>

/// What the window is started with, for a program that does without Qt until it is wanted.
namespace Rotavue::Workbench {

struct WindowOrder {
    std::vector<std::string> recordings = {};
    RecordingOptions recording = {};  ///< how they are read
    std::vector<CurveRequest> show{CurveRequest{}};
    std::optional<std::string> setup = {};   ///< a setup file, for all planes
    std::optional<double> at = {};           ///< where the cursor is, s; unset: the end
    std::optional<std::string> module = {};  ///< the module file
    std::string theme = {};                  ///< "light", "dark", "system"; empty: as remembered
    int width = 0;                           ///< pixels; 0: as remembered
    int height = 0;
    double scale = 0.0;  ///< of all that is on the screen; 0: as the desktop
    std::optional<std::string> screenshot =
        {};                      ///< a PNG file; the window is painted there and gone
    bool resetSettings = false;  ///< forget what the program remembers
};

/// Runs a window until it is closed and gives the program's exit status. One in a process. Raises
/// `std::runtime_error` where there is no plug-in, or no screenshot can be had.
int runWindow(const WindowOrder& order);

}  // namespace Rotavue::Workbench
