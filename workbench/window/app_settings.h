#pragma once

#include <QSettings>

#include <memory>

namespace Rotavue::Workbench {

/// What the program remembers from one start to the next: in the platform's place for such files,
/// or in `rotavue.ini` beside the program where that file is there.
std::unique_ptr<QSettings> appSettings();

/// Where windows keep what they have not saved: "unsaved" beside the settings.
QString unsavedFolder();

}  // namespace Rotavue::Workbench
