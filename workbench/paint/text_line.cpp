#include "workbench/paint/text_line.h"

#include <QPainter>
#include <QPainterPath>

namespace Rotavue::Workbench {

namespace {

void drawLetters(QPainter& painter, const TextFace& face, const TextLine& line) {
    const QPointF base(0, face.ascent());
    if (line.form == TextForm::Outlines) {
        QPainterPath shapes;
        shapes.addText(base, face.font(), line.text);
        painter.fillPath(shapes, line.color);
        return;
    }
    painter.setFont(face.font());
    painter.setPen(line.color);
    painter.drawText(base, line.text);
}

}  // namespace

void drawTextLine(QPainter& painter, const TextFace& face, const TextLine& line) {
    painter.save();
    painter.translate(line.corner);
    painter.rotate(-line.tenths / 10.0);
    if (line.ground) {
        painter.fillRect(0, 0, face.width(line.text), face.lineHeight(), *line.ground);
    }
    drawLetters(painter, face, line);
    painter.restore();
}

}  // namespace Rotavue::Workbench
