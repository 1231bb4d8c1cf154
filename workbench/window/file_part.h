#pragma once

namespace Rotavue::Workbench {

class MainWindow;

/// The files of a window: its File menu, drops, progress and messages, and the question before
/// changes are lost.
void addFiles(MainWindow& window);

}  // namespace Rotavue::Workbench
