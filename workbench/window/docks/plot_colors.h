#pragma once

#include <QColor>
#include <QPalette>

namespace Rotavue::Workbench {

/// The colours of a plot on the palette's background. X and Y are a blue and an orange that people
/// with any of the usual colour deficiencies tell apart, in a shade that stands out from a light or
/// a dark background (M. Okabe and K. Ito, Color universal design, 2008).
struct PlotColors {
    QColor background;
    QColor text;
    QColor frame;
    QColor grid;
    QColor x;
    QColor y;
    QColor neutral;  ///< a trace of neither probe
    QColor cursor;
    QColor mark;  ///< over a marked stretch, partly transparent
};

bool isDark(const QPalette& palette);

PlotColors plotColors(const QPalette& palette);

}  // namespace Rotavue::Workbench
