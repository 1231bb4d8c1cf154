#include "workbench/window/docks/elided_label.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace Rotavue::Workbench {

void ElidedLabel::setName(const QString& name) {
    setTextFormat(Qt::PlainText);
    setText(name);
    setToolTip(name);
}

QSize ElidedLabel::sizeFor(int letters) const {
    const QSize whole = QLabel::sizeHint();
    return {std::min(whole.width(), letters * fontMetrics().averageCharWidth()), whole.height()};
}

QSize ElidedLabel::sizeHint() const {
    constexpr int UsualName = 32;
    return sizeFor(UsualName);
}

QSize ElidedLabel::minimumSizeHint() const {
    constexpr int ShortestName = 6;
    return sizeFor(ShortestName);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = contentsRect();
    style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width()),
                          foregroundRole());
}

}  // namespace Rotavue::Workbench
