#include "workbench/window/transport_icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace Rotavue::Workbench {

namespace {

/// A triangle that points to the right for a positive width, in a square of side 16.
void addTriangle(QPainterPath& path, double left, double width) {
    path.moveTo(left, 3.0);
    path.lineTo(left + width, 8.0);
    path.lineTo(left, 13.0);
    path.closeSubpath();
}

void addBar(QPainterPath& path, double left, double width) {
    path.addRect(left, 3.0, width, 10.0);
}

/// Three quarters of a ring with the head of an arrow.
void addRing(QPainterPath& path) {
    QPainterPath ring;
    ring.addEllipse(QPointF(8.0, 8.0), 6.0, 6.0);
    QPainterPath hole;
    hole.addEllipse(QPointF(8.0, 8.0), 4.2, 4.2);
    QPainterPath gap;
    gap.addRect(8.0, 0.0, 8.0, 8.0);
    path = ring.subtracted(hole).subtracted(gap);
    path.moveTo(8.0, 0.2);
    path.lineTo(12.4, 2.9);
    path.lineTo(8.0, 5.6);
    path.closeSubpath();
}

QPainterPath pathOf(TransportSign sign) {
    QPainterPath path;
    switch (sign) {
        case TransportSign::Start:
            addBar(path, 3.0, 1.8);
            addTriangle(path, 13.0, -8.0);
            break;
        case TransportSign::Back:
            addTriangle(path, 8.0, -6.0);
            addTriangle(path, 14.0, -6.0);
            break;
        case TransportSign::Play:
            addTriangle(path, 4.0, 9.0);
            break;
        case TransportSign::Pause:
            addBar(path, 4.0, 3.0);
            addBar(path, 9.0, 3.0);
            break;
        case TransportSign::Forward:
            addTriangle(path, 2.0, 6.0);
            addTriangle(path, 8.0, 6.0);
            break;
        case TransportSign::End:
            addTriangle(path, 3.0, 8.0);
            addBar(path, 11.2, 1.8);
            break;
        case TransportSign::Loop:
            addRing(path);
            break;
    }
    return path;
}

class SignEngine final : public QIconEngine {
public:
    SignEngine(TransportSign sign, const QColor& color) : sign_(sign), color_(color) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        constexpr double Side = 16.0;
        QColor color = color_;
        if (mode == QIcon::Disabled) color.setAlphaF(0.4F);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / Side, rect.height() / Side);
        painter->fillPath(pathOf(sign_), color);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({}, size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SignEngine(sign_, color_); }

private:
    TransportSign sign_;
    QColor color_;
};

}  // namespace

QIcon transportIcon(TransportSign sign, const QColor& color) {
    return QIcon(new SignEngine(sign, color));
}

}  // namespace Rotavue::Workbench
