#include "workbench/window/docks/number_text.h"
#include "workbench/window/docks/plot_ticks.h"
#include "workbench/window/docks/time_plot.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

constexpr double Gap = 6.0;  ///< between texts and what they stand at

}  // namespace

QString titleOf(const PlotLane& lane, double cursor) {
    constexpr int TimePlaces = 4;
    const SampleTrace& trace = *lane.trace;
    const QString unit = lane.unit.isEmpty() ? QString() : ' ' + lane.unit;
    if (const auto value = trace.valueAt(cursor))
        return lane.name + ' ' + placed(*value, lane.decimals) + unit;
    const auto last = lane.tellsLast ? trace.lastKnown(cursor) : std::nullopt;
    if (!last) return lane.name + unit;
    return TimePlot::tr("%1 %2, last known at %3 s")
        .arg(lane.name, placed(trace.at(*last), lane.decimals) + unit,
             placed(trace.timeOf(*last), TimePlaces));
}

// Beside the lanes their widest number has room, but never at the cost of the most of them.
QRectF TimePlot::plotArea() const {
    const QFontMetricsF text(font());
    double widest = text.horizontalAdvance("-0000.0");
    for (const PlotRange& values : values_)
        for (const PlotTick& tick : ticksOf(values))
            widest = std::max(widest, text.horizontalAdvance(tick.text));
    const double left = std::min(widest + 1.5 * Gap, rect().width() / 2.0);
    const double bottom = 2.0 * text.height() + Gap;
    return QRectF(rect()).adjusted(left, 0.0, -2.0 * Gap, -bottom);
}

double TimePlot::laneHeight() const {
    const auto count = static_cast<double>(std::max<std::size_t>(lanes_.size(), 1));
    const double text = QFontMetricsF(font()).height();
    return std::max(1.0, (rect().height() - 2.0 * text - Gap) / count - text);
}

std::vector<PlotTick> TimePlot::ticksOf(const PlotRange& values) const {
    const int most = static_cast<int>(laneHeight() / (2.0 * QFontMetricsF(font()).height()));
    return valueTicks(values, std::clamp(most, 1, 10));
}

LaneMapping TimePlot::mapping(std::size_t lane) const {
    const QRectF area = plotArea();
    const double title = QFontMetricsF(font()).height();
    const double height = laneHeight();
    const double top = area.top() + title + static_cast<double>(lane) * (height + title);
    return {QRectF(area.left(), top, std::max(1.0, area.width()), height), time_, values_[lane]};
}

QColor TimePlot::colorOf(LaneColor color) const {
    if (color == LaneColor::X) return colors_.x;
    return color == LaneColor::Y ? colors_.y : colors_.neutral;
}

void TimePlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (lanes_.empty()) {
        painter.fillRect(rect(), colors_.background);
        painter.setPen(colors_.text);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
        return;
    }
    const qreal scale = devicePixelRatioF();
    if (traces_.isNull() || traces_.devicePixelRatio() != scale) {
        traces_ = QPixmap(size() * scale);
        traces_.setDevicePixelRatio(scale);
        QPainter onPixmap(&traces_);
        onPixmap.setFont(font());
        paintTraces(onPixmap);
    }
    painter.drawPixmap(0, 0, traces_);
    paintMark(painter);
    paintCursor(painter);
    if (!hasFocus()) return;
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void TimePlot::paintTraces(QPainter& painter) const {
    painter.fillRect(rect(), colors_.background);
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
        const LaneMapping lane = mapping(i);
        paintAxes(painter, lane);
        drawTrace(painter, lane, *lanes_[i].trace, colorOf(lanes_[i].color));
        drawDots(painter, lane, *lanes_[i].trace, dots_, colors_.text, colors_.background);
    }
    paintTimeAxis(painter);
}

void TimePlot::paintAxes(QPainter& painter, const LaneMapping& lane) const {
    const QFontMetricsF text(font());
    const std::vector<PlotTick> ticks = ticksOf(lane.value);
    painter.setPen(colors_.grid);
    for (const PlotTick& tick : ticks) {
        const double y = lane.yOf(tick.value);
        painter.drawLine(QPointF(lane.area.left(), y), QPointF(lane.area.right(), y));
    }
    painter.setPen(colors_.text);
    const double distance = text.height() / lane.area.height() * lane.value.length();
    for (const PlotTick& tick : apart(ticks, distance)) {
        const double top = lane.yOf(tick.value) - text.height() / 2.0;
        const QRectF label(0.0, top, lane.area.left() - Gap, text.height());
        painter.drawText(label, Qt::AlignRight | Qt::AlignVCenter, tick.text);
    }
    const int mostTimes =
        static_cast<int>(lane.area.width() / (2.0 * text.horizontalAdvance("00.000")));
    painter.setPen(colors_.grid);
    for (const PlotTick& tick : plotTicks(time_, std::clamp(mostTimes, 1, 10))) {
        const double x = lane.xOf(tick.value);
        painter.drawLine(QPointF(x, lane.area.top()), QPointF(x, lane.area.bottom()));
    }
    painter.setPen(colors_.frame);
    painter.drawRect(lane.area);
}

void TimePlot::paintTimeAxis(QPainter& painter) const {
    const QFontMetricsF text(font());
    const LaneMapping lane = mapping(lanes_.size() - 1);
    painter.setPen(colors_.text);
    const int most = static_cast<int>(lane.area.width() / (2.0 * text.horizontalAdvance("00.000")));
    const double top = lane.area.bottom() + Gap / 2.0;
    for (const PlotTick& tick : plotTicks(time_, std::clamp(most, 1, 10))) {
        const double half = text.horizontalAdvance(tick.text);
        const QRectF label(lane.xOf(tick.value) - half, top, 2.0 * half, text.height());
        painter.drawText(label, Qt::AlignHCenter | Qt::AlignTop, tick.text);
    }
    const QRectF title(lane.area.left(), top + text.height(), lane.area.width(), text.height());
    painter.drawText(title, Qt::AlignCenter, tr("time (s)"));
}

void TimePlot::paintMark(QPainter& painter) const {
    if (!mark_) return;
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
        const LaneMapping lane = mapping(i);
        const double from = std::max(lane.xOf(mark_->from), lane.area.left());
        const double to = std::min(lane.xOf(mark_->to), lane.area.right());
        if (from >= to) continue;
        const QRectF band(from, lane.area.top(), to - from, lane.area.height());
        painter.fillRect(band, colors_.mark);
        painter.setPen(QPen(colors_.mark.darker(130), 1.0));
        painter.drawRect(band);
    }
}

void TimePlot::paintCursor(QPainter& painter) const {
    const QFontMetricsF text(font());
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
        const LaneMapping lane = mapping(i);
        if (time_.contains(cursor_)) {
            const double x = lane.xOf(cursor_);
            painter.setPen(QPen(colors_.cursor, 1.5));
            painter.drawLine(QPointF(x, lane.area.top()), QPointF(x, lane.area.bottom()));
        }
        const QRectF box(lane.area.left(), lane.area.top() - text.height(), lane.area.width(),
                         text.height());
        painter.setPen(colorOf(lanes_[i].color));
        painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter, titleOf(lanes_[i], cursor_));
    }
}

}  // namespace Rotavue::Workbench
