#pragma once

#include <QWidget>

namespace Rotavue::Workbench {

enum class DockTheme { Light, Dark };

/// The whole program's palette.
void setTheme(DockTheme theme);

/// Keeps what the widget looks like as build/screenshots/NAME.png.
void shoot(QWidget& widget, const char* name);

/// Keeps what the widget looks like in both themes, as build/screenshots/NAME-light.png and -dark;
/// the light one is left.
void screenshot(QWidget& widget, const char* name);

}  // namespace Rotavue::Workbench
