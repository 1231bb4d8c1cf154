#include "workbench/window/theme.h"

#include "workbench/scene/scheme_colors.h"
#include "workbench/window/outlined_style.h"

#include <QApplication>

namespace Rotavue::Workbench {

namespace {

struct Shades {
    QRgb window;
    QRgb base;
    QRgb raised;
    QRgb text;
    QRgb faint;
    QRgb accent;
    QRgb onAccent;
};

constexpr Shades LightShades{0xFFF3F4F6, 0xFFFFFFFF, 0xFFE9EBEE, 0xFF16181B,
                             0xFF6B7280, 0xFF0B63B0, 0xFFFFFFFF};
// Edits are lighter than the window: the style draws the boxes of checks darker than that.
constexpr Shades DarkShades{0xFF202226, 0xFF2D3036, 0xFF34383F, 0xFFE4E6EA,
                            0xFF9AA1AC, 0xFF4C9BE8, 0xFF0B0C0E};

QPalette paletteOf(const Shades& shades) {
    QPalette palette(QColor::fromRgb(shades.raised), QColor::fromRgb(shades.window));
    const auto set = [&](QPalette::ColorRole role, QRgb color) {
        palette.setColor(role, QColor::fromRgb(color));
    };
    set(QPalette::Base, shades.base);
    set(QPalette::AlternateBase, shades.raised);
    set(QPalette::ToolTipBase, shades.raised);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        set(role, shades.text);
    set(QPalette::PlaceholderText, shades.faint);
    set(QPalette::Highlight, shades.accent);
    set(QPalette::HighlightedText, shades.onAccent);
    set(QPalette::Link, shades.accent);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(shades.faint));
    return palette;
}

/// The palette that the desktop gave, as it was before anything was changed.
const QPalette& systemPalette() {
    static const QPalette palette = QApplication::palette();
    return palette;
}

bool isDark(const QPalette& palette) {
    constexpr double Middle = 0.5;
    return palette.color(QPalette::Window).lightnessF() < Middle;
}

}  // namespace

Theme themeNamed(const QString& word) {
    if (word == "light") return Theme::Light;
    return word == "dark" ? Theme::Dark : Theme::System;
}

QString wordOf(Theme theme) {
    if (theme == Theme::Light) return "light";
    return theme == Theme::Dark ? "dark" : "system";
}

std::int32_t apply(Theme theme, QApplication& application) {
    const bool dark = theme == Theme::System ? isDark(systemPalette()) : theme == Theme::Dark;
    systemPalette();
    if (dynamic_cast<OutlinedStyle*>(application.style()) == nullptr) {
        QApplication::setStyle(new OutlinedStyle);
    }
    QApplication::setPalette(paletteOf(dark ? DarkShades : LightShades));
    return dark ? DarkNumber : LightNumber;
}

}  // namespace Rotavue::Workbench
