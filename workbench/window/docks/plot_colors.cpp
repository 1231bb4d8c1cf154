#include "workbench/window/docks/plot_colors.h"

namespace Rotavue::Workbench {

namespace {

QColor mixed(const QColor& a, const QColor& b, double part) {
    const auto between = [part](int from, int to) {
        return static_cast<int>(from + (to - from) * part);
    };
    return {between(a.red(), b.red()), between(a.green(), b.green()), between(a.blue(), b.blue())};
}

}  // namespace

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}

PlotColors plotColors(const QPalette& palette) {
    const bool dark = isDark(palette);
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    QColor mark = dark ? QColor(0x56, 0xD3, 0xAC) : QColor(0x00, 0x9E, 0x73);
    mark.setAlpha(70);
    return {.background = base,
            .text = text,
            .frame = mixed(base, text, 0.55),
            .grid = mixed(base, text, 0.14),
            .x = dark ? QColor(0x56, 0xB4, 0xE9) : QColor(0x00, 0x72, 0xB2),
            .y = dark ? QColor(0xE6, 0x9F, 0x00) : QColor(0xD5, 0x5E, 0x00),
            .neutral = mixed(base, text, 0.8),
            .cursor = dark ? QColor(0xF2, 0xA6, 0xCB) : QColor(0xA8, 0x3C, 0x7A),
            .mark = mark};
}

}  // namespace Rotavue::Workbench
