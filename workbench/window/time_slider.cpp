#include "workbench/window/time_slider.h"

#include "workbench/scene/fact_words.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

constexpr int SpeedPoints = 400;

/// What stays free at both ends, so that the cursor's handle is whole there. Pixels.
constexpr double Margin = 6.0;

}  // namespace

TimeSlider::TimeSlider(Bench& bench, QWidget* parent) : QWidget(parent), bench_(bench) {
    setObjectName("timeSlider");
    setAccessibleName(tr("Time cursor"));
    setToolTip(
        tr("Time in the recording, with the speed behind it\n"
           "Left, Right: one turn; Page Up, Page Down: eight turns; Home, End"));
    setCursor(Qt::SizeHorCursor);
    connect(&bench_, &Bench::planesChanged, this, &TimeSlider::readSpeed);
    connect(&bench_, &Bench::cursorMoved, this, qOverload<>(&QWidget::update));
    readSpeed();
}

void TimeSlider::setCurrent(const Plane* plane) {
    current_ = plane;
    readSpeed();
}

void TimeSlider::readSpeed() {
    speed_.clear();
    fastest_ = 0.0;
    const auto turning =
        std::find_if(bench_.planes().begin(), bench_.planes().end(),
                     [this](const auto& plane) { return plane.get() == current_; });
    if (turning != bench_.planes().end() && (*turning)->original().recording.hasTacho()) {
        const ShaftTrack& track = (*turning)->original().track;
        for (int i = 0; i <= SpeedPoints; ++i) {
            const double time = bench_.duration() * i / SpeedPoints;
            speed_ << QPointF(time, track.speedAt(time));
            fastest_ = std::max(fastest_, speed_.back().y());
        }
    }
    update();
}

double TimeSlider::xOf(double seconds) const {
    const double end = bench_.duration();
    const double part = end > 0.0 ? seconds / end : 0.0;
    return Margin + part * (width() - 2.0 * Margin);
}

QPolygonF TimeSlider::traceIn(const QRectF& area) const {
    QPolygonF trace;
    for (const QPointF& point : speed_)
        trace << QPointF(xOf(point.x()), area.bottom() - point.y() / fastest_ * area.height());
    trace << QPointF(trace.back().x(), area.bottom()) << QPointF(trace.front().x(), area.bottom());
    return trace;
}

void TimeSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(Margin, 4.0, -Margin, -4.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(area);
    if (fastest_ > 0.0) {
        QColor fill = palette().color(QPalette::Highlight);
        fill.setAlphaF(0.25F);
        painter.setBrush(fill);
        painter.drawPolygon(traceIn(area.adjusted(0.0, 3.0, 0.0, 0.0)));
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(area.adjusted(4.0, 0.0, 0.0, 0.0), Qt::AlignLeft | Qt::AlignTop,
                         tr("%1 rpm").arg(QString::fromStdString(shortNumber(fastest_))));
    }
    if (bench_.planes().empty()) return;
    const double x = xOf(bench_.cursor());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
    painter.drawLine(QPointF(x, 1.0), QPointF(x, height() - 1.0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawEllipse(QPointF(x, height() / 2.0), 5.0, 5.0);
}

void TimeSlider::moveCursorTo(double x) {
    const double length = std::max(1.0, width() - 2.0 * Margin);
    bench_.setCursor((x - Margin) / length * bench_.duration());
}

void TimeSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) moveCursorTo(event->position().x());
}

void TimeSlider::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) moveCursorTo(event->position().x());
}

void TimeSlider::wheelEvent(QWheelEvent* event) {
    constexpr double Steps = 100.0;
    const double direction = event->angleDelta().y() > 0 ? -1.0 : 1.0;
    bench_.setCursor(bench_.cursor() + direction * bench_.duration() / Steps);
    event->accept();
}

}  // namespace Rotavue::Workbench
