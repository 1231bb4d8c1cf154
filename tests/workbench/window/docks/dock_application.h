#pragma once

#include <QWidget>

namespace Rotavue::Workbench {

enum class Theme { Light, Dark };

/// The whole program's palette.
void setTheme(Theme theme);

/// Keeps what the widget looks like in both themes, as build/screenshots/NAME-light.png and -dark;
/// the light one is left.
void screenshot(QWidget& widget, const char* name);

}  // namespace Rotavue::Workbench
