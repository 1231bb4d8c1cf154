#include "workbench/window/outlined_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace Rotavue::Workbench {

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStyleFactory::create("fusion")) {}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck) return;
    painter->save();
    painter->setPen(option->palette.color(QPalette::PlaceholderText));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

}  // namespace Rotavue::Workbench
