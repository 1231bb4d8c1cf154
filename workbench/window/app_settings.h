#pragma once

#include <QSettings>

#include <memory>

namespace Rotavue::Workbench {

/// What the program remembers from one start to the next: in the platform's place for such files,
/// or in `rotavue.ini` beside the program where that file is there.
std::unique_ptr<QSettings> appSettings();

}  // namespace Rotavue::Workbench
