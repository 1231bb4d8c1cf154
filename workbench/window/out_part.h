#pragma once

namespace Rotavue::Workbench {

class MainWindow;

/// What goes out of a window: copied numbers and pictures, exported pictures, report pages; and the
/// run-out that is taken away before.
void addOut(MainWindow& window);

}  // namespace Rotavue::Workbench
