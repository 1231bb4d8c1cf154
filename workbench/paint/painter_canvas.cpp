#include "workbench/paint/painter_canvas.h"

#include "workbench/paint/ellipse_angle.h"

#include <QPainter>
#include <QPolygonF>
#include <QTransform>

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

/// Bits of a text's format.
constexpr std::uint32_t CentredAcross = 0x4;
constexpr std::uint32_t CentredUpright = 0x10000;

/// Without antialiasing the painter itself takes whole numbers as pixels.
QPointF middleFor(LineQuality lines) {
    return lines == LineQuality::Smooth ? QPointF(0.5, 0.5) : QPointF(0.0, 0.0);
}

/// Half of what is left over, on a whole pixel, so that letters stay sharp.
int halfOf(int space) {
    return space >= 0 ? space / 2 : -((1 - space) / 2);
}

}  // namespace

/// A filled shape about to be drawn: strokes the lines before it and sets pen and brush.
class PainterCanvas::Shape {
public:
    explicit Shape(PainterCanvas& canvas) : painter_(canvas.painter_) {
        canvas.strokeLines();
        const std::optional<QColor> fill = canvas.brush_.fill();
        QPen pen = canvas.pen_.pen();
        pen.setJoinStyle(Qt::MiterJoin);
        painter_.setPen(pen);
        painter_.setBrush(fill ? QBrush(*fill) : QBrush(Qt::NoBrush));
    }

    QPainter* operator->() const { return &painter_; }

private:
    QPainter& painter_;
};

PainterCanvas::PainterCanvas(QPainter& painter, QSize size, const CanvasOptions& options)
    : painter_(painter),
      options_(options),
      reach_(size, painter.deviceTransform().m11()),
      middle_(middleFor(options.lines)),
      pen_([this] { strokeLines(); }),
      font_(options.fontHeight) {
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing, options.lines == LineQuality::Smooth);
    painter_.setClipRect(QRect(QPoint(0, 0), size), Qt::IntersectClip);
}

PainterCanvas::~PainterCanvas() {
    strokeLines();
    painter_.restore();
}

void PainterCanvas::LineTo(std::int32_t x, std::int32_t y) {
    run_.lineTo(reach_.held(x, y));
    if (run_.full()) strokeLines();
}

void PainterCanvas::MoveTo(std::int32_t x, std::int32_t y) {
    run_.moveTo(reach_.held(x, y));
}

void PainterCanvas::strokeLines() {
    if (run_.empty()) return;
    painter_.setPen(pen_.pen());
    painter_.translate(middle_);
    run_.strokeOn(painter_, options_.lines);
    painter_.translate(-middle_);
}

QPointF PainterCanvas::middleOf(std::int32_t x, std::int32_t y) const {
    return reach_.held(x, y) + middle_;
}

QRectF PainterCanvas::boxOf(std::int32_t x1, std::int32_t y1, std::int32_t x2,
                            std::int32_t y2) const {
    return QRectF(middleOf(x1, y1), middleOf(x2, y2)).normalized();
}

void PainterCanvas::Ellipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    Shape(*this)->drawEllipse(boxOf(x1, y1, x2, y2));
}

void PainterCanvas::Rectangle(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    Shape(*this)->drawRect(boxOf(x1, y1, x2, y2));
}

void PainterCanvas::Arc(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                        std::int32_t x3, std::int32_t y3, std::int32_t x4, std::int32_t y4) {
    const QRectF box = boxOf(x1, y1, x2, y2);
    const ArcAngles angles = arcAngles(box, middleOf(x3, y3), middleOf(x4, y4));
    Shape(*this)->drawArc(box, angles.start, angles.span);
}

void PainterCanvas::Polygon(const std::vector<std::int32_t>& coordinates, std::int32_t count) {
    const std::size_t wanted = count > 0 ? static_cast<std::size_t>(count) : 0;
    const std::size_t points = std::min(wanted, coordinates.size() / 2);
    QPolygonF polygon;
    for (std::size_t i = 0; i < points; ++i) {
        polygon.append(middleOf(coordinates[2 * i], coordinates[2 * i + 1]));
    }
    Shape(*this)->drawPolygon(polygon);
}

void PainterCanvas::drawText(const QString& text, QPointF corner) {
    strokeLines();
    drawTextLine(painter_, font_.face(),
                 {.text = text,
                  .corner = corner,
                  .tenths = font_.tenths(),
                  .color = font_.color(),
                  .ground = brush_.fill(),
                  .form = options_.text});
    if (options_.painted) {
        options_.painted({text, middleOfText(text, corner), brush_.fill().has_value()});
    }
}

// From its corner a text runs along its angle, and its lines stand across that.
QPointF PainterCanvas::middleOfText(const QString& text, QPointF corner) {
    QTransform turn;
    turn.rotate(-0.1 * font_.tenths());
    return corner + turn.map(0.5 * QPointF(font_.face().width(text), font_.face().lineHeight()));
}

void PainterCanvas::TextOut(std::int32_t x, std::int32_t y, const std::wstring& text) {
    drawText(toQString(text), reach_.held(x, y));
}

void PainterCanvas::TextRect(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                             const std::wstring& text, std::uint32_t format) {
    const QString line = toQString(text);
    QPoint corner = reach_.held(x1, y1);
    const QPoint space = reach_.held(x2, y2) - corner;
    if ((format & CentredAcross) != 0) {
        corner.rx() += halfOf(space.x() - font_.face().width(line));
    }
    if ((format & CentredUpright) != 0) {
        corner.ry() += halfOf(space.y() - font_.face().lineHeight());
    }
    drawText(line, corner);
}

std::int32_t PainterCanvas::TextWidth(const std::wstring& text) {
    return font_.face().width(toQString(text));
}

std::int32_t PainterCanvas::TextHeight(const std::wstring&) {
    return font_.face().lineHeight();
}

Host::Ref<Host::IHostBrush> PainterCanvas::GetBrush() {
    return Host::Ref<Host::IHostBrush>::share(&brush_);
}

Host::Ref<Host::IHostPen> PainterCanvas::GetPen() {
    return Host::Ref<Host::IHostPen>::share(&pen_);
}

Host::Ref<Host::IHostFont> PainterCanvas::GetFont() {
    return Host::Ref<Host::IHostFont>::share(&font_);
}

}  // namespace Rotavue::Workbench
