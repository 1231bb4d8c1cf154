#include "workbench/window/docks/time_plot.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Rotavue::Workbench {

namespace {

/// The shortest time that can be looked at, s.
constexpr double ShortestTime = 1e-6;

PlotRange valuesOf(const PlotLane& lane) {
    auto range = lane.trace->range().value_or(PlotRange{0.0, 0.0});
    if (lane.fromZero) range = {std::min(range.from, 0.0), std::max(range.to, 0.0)};
    return withRoom(range);
}

/// Keeps the zoom from where numbers lose their digits.
bool isSensible(const PlotRange& range, const PlotRange& whole) {
    const double part = range.length() / whole.length();
    return part > 1e-6 && part < 1e3;
}

double durationOf(const std::vector<PlotLane>& lanes) {
    double longest = ShortestTime;
    for (const PlotLane& lane : lanes)
        longest = std::max(longest, lane.trace->duration());
    return longest;
}

}  // namespace

TimePlot::TimePlot(QWidget* parent) : QWidget(parent), colors_(plotColors(palette())) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    setToolTip(
        tr("Drag: move the cursor. Ctrl+drag or I and O: mark a stretch; Delete: unmark.\n"
           "Wheel: zoom (Shift: time alone, Ctrl: values alone); + and -: zoom the time.\n"
           "Ctrl+Left, Ctrl+Right: turn over. Double click or 0: show everything."));
}

// While a long recording is read through there is no lane: what was looked at waits for what comes.
void TimePlot::setLanes(std::vector<PlotLane> lanes) {
    if (!lanes_.empty()) lookedAt_ = {duration_, time_};
    lanes_ = std::move(lanes);
    duration_ = lanes_.empty() ? 0.0 : durationOf(lanes_);
    markStart_.reset();
    resetView();
    if (!lanes_.empty() && duration_ == lookedAt_.duration) showTime(lookedAt_.time);
}

void TimePlot::setDots(std::vector<double> times) {
    dots_ = std::move(times);
    repaintTraces();
}

void TimePlot::setEmptyText(const QString& text) {
    emptyText_ = text;
    update();
}

void TimePlot::setCursor(double time) {
    cursor_ = time;
    if (!lanes_.empty() && !time_.contains(time) && everything().contains(time))
        showTime(turnedTo(time_, time));
    update();
}

void TimePlot::setMark(const std::optional<TimeSpan>& mark) {
    mark_ = mark;
    update();
}

void TimePlot::resetView() {
    time_ = everything();
    values_.clear();
    for (const PlotLane& lane : lanes_)
        values_.push_back(valuesOf(lane));
    repaintTraces();
}

void TimePlot::showTime(const PlotRange& range) {
    time_ = within(range, everything(), ShortestTime);
    repaintTraces();
}

void TimePlot::zoom(const QPointF& at, double factor, bool time, bool values) {
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
        const LaneMapping lane = mapping(i);
        const bool here = at.y() >= lane.area.top() && at.y() <= lane.area.bottom();
        if (!values || !here) continue;
        const PlotRange next = zoomed(values_[i], lane.valueAt(at.y()), factor);
        if (isSensible(next, valuesOf(lanes_[i]))) values_[i] = next;
    }
    if (time) time_ = zoomed(time_, mapping(0).timeAt(at.x()), factor);
    showTime(time_);
}

void TimePlot::moveCursor(double time) {
    cursor_ = std::clamp(time, 0.0, duration_);
    update();
    cursorMoved(cursor_);
}

void TimePlot::changeMark(const std::optional<TimeSpan>& mark) {
    mark_ = mark;
    update();
    markChanged(mark_);
}

// Beyond the other end of the mark a new one begins: from there to the end of the recordings, or
// from their start to there.
void TimePlot::markFromCursor(bool begin) {
    const TimeSpan whole{0.0, duration_};
    TimeSpan span = mark_.value_or(whole);
    if (begin ? cursor_ >= span.to : cursor_ <= span.from) span = whole;
    (begin ? span.from : span.to) = cursor_;
    if (span.length() > 0.0) changeMark(span);
}

void TimePlot::repaintTraces() {
    traces_ = {};
    update();
}

void TimePlot::resizeEvent(QResizeEvent*) {
    repaintTraces();
}

void TimePlot::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
    colors_ = plotColors(palette());
    repaintTraces();
}

void TimePlot::mousePressEvent(QMouseEvent* event) {
    if (lanes_.empty() || event->button() != Qt::LeftButton) return;
    const double time = std::clamp(mapping(0).timeAt(event->position().x()), 0.0, duration_);
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        markStart_ = time;
    } else {
        moveCursor(time);
    }
}

void TimePlot::mouseMoveEvent(QMouseEvent* event) {
    if (lanes_.empty() || !event->buttons().testFlag(Qt::LeftButton)) return;
    const double time = std::clamp(mapping(0).timeAt(event->position().x()), 0.0, duration_);
    if (!markStart_) {
        moveCursor(time);
    } else if (time != *markStart_) {
        mark_ = TimeSpan{std::min(*markStart_, time), std::max(*markStart_, time)};
        update();
    }
}

void TimePlot::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !markStart_) return;
    markStart_.reset();
    changeMark(mark_);
}

void TimePlot::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) resetView();
}

void TimePlot::wheelEvent(QWheelEvent* event) {
    // Some platforms turn the wheel sideways while Shift is held.
    const int turned = event->angleDelta().x() + event->angleDelta().y();
    if (lanes_.empty() || turned == 0) return;
    const bool timeAlone = event->modifiers().testFlag(Qt::ShiftModifier);
    const bool valuesAlone = event->modifiers().testFlag(Qt::ControlModifier);
    constexpr double Step = 120.0;  // of a wheel with notches
    zoom(event->position(), std::pow(0.8, turned / Step), !valuesAlone, !timeAlone);
    event->accept();
}

void TimePlot::keyPressEvent(QKeyEvent* event) {
    const bool turns = event->modifiers().testFlag(Qt::ControlModifier);
    const double page = time_.length();
    switch (lanes_.empty() ? 0 : event->key()) {
        case Qt::Key_Plus:
            return showTime(zoomed(time_, cursor_, 0.5));
        case Qt::Key_Minus:
            return showTime(zoomed(time_, cursor_, 2.0));
        case Qt::Key_Left:
            if (!turns) return QWidget::keyPressEvent(event);
            return showTime({time_.from - page, time_.to - page});
        case Qt::Key_Right:
            if (!turns) return QWidget::keyPressEvent(event);
            return showTime({time_.from + page, time_.to + page});
        case Qt::Key_0:
            return resetView();
        case Qt::Key_I:
            return markFromCursor(true);
        case Qt::Key_O:
            return markFromCursor(false);
        case Qt::Key_Delete:
            if (mark_) changeMark({});
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace Rotavue::Workbench
