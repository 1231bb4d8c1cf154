#pragma once

#include "workbench/window/main_window.h"
#include "workbench/window/window_order.h"

namespace Rotavue::Workbench {

/// Opens what is ordered before it returns and asks nothing, for a window that nobody sits at.
/// Views are opened last, and the last of them takes the place of everything, as when the window is
/// used. Raises `std::runtime_error` where one of the files cannot be opened.
void openAtOnce(MainWindow& window, const WindowOrder& order);

/// The settings that are ordered for all controls, if any.
std::optional<Settings> orderedSettings(const WindowOrder& order);

}  // namespace Rotavue::Workbench
