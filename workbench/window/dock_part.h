#pragma once

namespace Rotavue::Workbench {

class MainWindow;

/// The docks round the orbits: channels, properties, numbers, waveforms and speed, all following
/// the bench and the current plane.
void addDocks(MainWindow& window);

}  // namespace Rotavue::Workbench
