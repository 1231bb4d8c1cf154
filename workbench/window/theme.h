#pragma once

#include <QPalette>
#include <QString>

#include <cstdint>

class QApplication;

namespace Rotavue::Workbench {

/// What the user has chosen; `System` takes what the desktop has.
enum class Theme : std::uint8_t { System, Light, Dark };

/// "system", "light" and "dark"; `System` for any other word.
Theme themeNamed(const QString& word);
QString wordOf(Theme theme);

/// Dresses the application, and gives the number of the scheme that plots are drawn in with it.
std::int32_t apply(Theme theme, QApplication& application);

}  // namespace Rotavue::Workbench
