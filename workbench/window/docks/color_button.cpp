#include "workbench/window/docks/color_button.h"

#include <QColorDialog>
#include <QEvent>
#include <QPainter>
#include <QPixmap>

namespace Rotavue::Workbench {

namespace {

/// The colour in a frame that stands out from any background.
QIcon swatch(const QColor& color, const QColor& frame, QSize size, qreal scale) {
    QPixmap pixmap(size * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(frame);
    painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
    painter.end();
    return QIcon(pixmap);
}

}  // namespace

ColorButton::ColorButton(QWidget* parent) : QPushButton(parent) {
    setToolTip(tr("Choose a colour (Space)"));
    connect(this, &QPushButton::clicked, this, &ColorButton::openDialog);
    showColor();
}

void ColorButton::setColor(const QColor& color) {
    color_ = color;
    showColor();
}

void ColorButton::choose(const QColor& color) {
    if (!color.isValid() || color.rgb() == color_.rgb()) return;
    setColor(color);
    colorChosen(color_);
}

void ColorButton::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) {
        showColor();
    }
}

void ColorButton::openDialog() {
    auto* dialog = new QColorDialog(color_, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QColorDialog::colorSelected, this, &ColorButton::choose);
    dialog->open();
}

void ColorButton::showColor() {
    setText(color_.name());
    setIcon(swatch(color_, palette().color(QPalette::ButtonText), iconSize(), devicePixelRatioF()));
}

}  // namespace Rotavue::Workbench
