#pragma once

namespace Rotavue::Workbench {

class MainWindow;

/// Adds to a window what one part of the workbench needs: docks, actions, bars. What it makes
/// belongs to the window, as a child.
using WindowPart = void (*)(MainWindow& window);

/// Adds every part there is, in the order of the table in window_parts.cpp.
void addWindowParts(MainWindow& window);

}  // namespace Rotavue::Workbench
