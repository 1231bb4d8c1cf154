#pragma once

#include "workbench/paint/text_face.h"

#include <QColor>
#include <QPointF>
#include <QString>

#include <cstdint>
#include <optional>

class QPainter;

namespace Rotavue::Workbench {

/// Whether text goes out as letters of a font or as the shapes of the letters. Shapes look the same
/// for a reader who does not have the font.
enum class TextForm : std::uint8_t { Letters, Outlines };

/// One line of text and how it is drawn.
struct TextLine {
    QString text;
    QPointF corner;  ///< upper left corner of the text's box, before it is turned about it
    int tenths = 0;  ///< of a degree, counter-clockwise; 900 runs from bottom to top
    QColor color;
    std::optional<QColor> ground = {};  ///< fills the text's box
    TextForm form = TextForm::Letters;
};

/// Draws the line with that face. Leaves the painter's state as it was.
void drawTextLine(QPainter& painter, const TextFace& face, const TextLine& line);

}  // namespace Rotavue::Workbench
