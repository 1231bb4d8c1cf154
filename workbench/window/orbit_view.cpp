#include "workbench/window/orbit_view.h"

#include "plugin/framework/color_scheme.h"
#include "workbench/bench/axis_limits.h"
#include "workbench/paint/host_color.h"
#include "workbench/paint/painter_canvas.h"
#include "workbench/paint/painting_studio.h"

#include <QCursor>
#include <QEnterEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QWheelEvent>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Rotavue::Workbench {

namespace {

std::int32_t numberOf(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return 0;
        case Qt::RightButton:
            return 1;
        default:
            return 2;
    }
}

QPoint placeOf(const QSinglePointEvent& event) {
    return event.position().toPoint();
}

/// In a tile of a quarter of a small window the letters are smaller than in a picture, so that the
/// numbers at the axes stay clear of each other.
int textHeightIn(const QSize& tile) {
    constexpr int SmallTile = 400;
    constexpr int SmallText = 11;
    const int usual = suitableTextHeight(tile.width(), tile.height());
    return std::min(tile.width(), tile.height()) < SmallTile ? std::min(usual, SmallText) : usual;
}

/// Numbers on a ground of their own: that is how a control shows what can be clicked.
bool isLimit(const PaintedText& painted) {
    bool isNumber = false;
    if (painted.onGround) QLocale::c().toDouble(painted.text, &isNumber);
    return isNumber;
}

}  // namespace

OrbitView::OrbitView(Bench& bench, std::shared_ptr<Plane> plane, QWidget* parent)
    : QWidget(parent), bench_(bench), plane_(std::move(plane)), editor_(*this) {
    setObjectName("orbitView");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    plane_->host().listen(this);
    const auto redraw = [this] { update(); };
    const auto redrawMine = [this](const Plane* changed) {
        if (changed == plane_.get()) update();
    };
    connect(&bench_, &Bench::cursorMoved, this, redraw);
    connect(&bench_, &Bench::schemeChanged, this, redraw);
    connect(&bench_, &Bench::curvesChanged, this, redrawMine);
    connect(&bench_, &Bench::settingsChanged, this, redrawMine);
}

OrbitView::~OrbitView() {
    if (plane_->host().listener() == this) plane_->host().listen(nullptr);
}

template <class Message>
void OrbitView::send(Message message) {
    // An editor may be open for long within a message, and this widget be gone behind it.
    const QPointer<OrbitView> alive(this);
    const std::shared_ptr<Plane> plane = plane_;
    QString failure;
    try {
        message(plane->control());
    } catch (const std::runtime_error& error) {
        failure = QString::fromUtf8(error.what());
    }
    if (!alive) return;
    if (!failure.isEmpty() && failure != lastFailure_) bench_.report(failure);
    lastFailure_ = failure;
}

void OrbitView::paintEvent(QPaintEvent*) {
    const auto& colors = Meridax::VisualControls::Api::schemeOf(bench_.scheme());
    QPainter painter(this);
    painter.fillRect(rect(), fromHostColor(colors.background));
    limitPlaces_.clear();
    const auto keepLimit = [this](const PaintedText& painted) {
        if (isLimit(painted)) limitPlaces_.push_back(painted.middle.toPoint());
    };
    send([&](HostKit::DrivenControl& control) {
        PainterCanvas canvas(painter, size(),
                             {.fontHeight = textHeightIn(size()), .painted = keepLimit});
        control.draw(Meridax::Host::Ref<Meridax::Host::IHostCanvas>::share(&canvas), width(),
                     height(), bench_.scheme());
    });
    Q_EMIT drawn();
}

// Coming says no place, and a pointer that comes may stay where it is: from behind a window, say.
void OrbitView::enterEvent(QEnterEvent* event) {
    const QPoint place = placeOf(*event);
    send([place](HostKit::DrivenControl& control) {
        control.enterPointer();
        control.movePointer(place.x(), place.y());
    });
}

void OrbitView::leaveEvent(QEvent*) {
    send([](HostKit::DrivenControl& control) { control.leavePointer(); });
    update();
}

void OrbitView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = placeOf(*event);
    send([place](HostKit::DrivenControl& control) { control.movePointer(place.x(), place.y()); });
}

void OrbitView::mousePressEvent(QMouseEvent* event) {
    const QPoint place = placeOf(*event);
    const std::int32_t button = numberOf(event->button());
    Q_EMIT chosen(plane_.get());
    send([&](HostKit::DrivenControl& control) {
        control.pressButton(button, place.x(), place.y());
    });
}

void OrbitView::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<OrbitView> alive(this);
    const QPoint place = placeOf(*event);
    const std::int32_t button = numberOf(event->button());
    const std::size_t limit = nearestLimit(place);
    send([&](HostKit::DrivenControl& control) {
        control.releaseButton(button, place.x(), place.y());
    });
    if (!alive) return;
    const int run = bench_.beginRun();
    bench_.noticeSettings(*plane_, tr("limits"), run);
    walkFrom(limit, run);
}

std::size_t OrbitView::nearestLimit(QPoint place) const {
    const auto nearer = [place](QPoint a, QPoint b) {
        return (a - place).manhattanLength() < (b - place).manhattanLength();
    };
    const auto nearest = std::min_element(limitPlaces_.begin(), limitPlaces_.end(), nearer);
    return static_cast<std::size_t>(nearest - limitPlaces_.begin());
}

void OrbitView::editLimits() {
    if (editor_.isEditing()) return;
    const QPointer<OrbitView> alive(this);
    const int run = bench_.beginRun();
    setFocus(Qt::ShortcutFocusReason);
    fixScale();
    editLimit(0, run);
    if (alive) walkFrom(0, run);
    if (!alive) return;
    plane_->endTrial();
    if (bench_.has(*plane_)) returnPointer();
}

/// A control lets its limits be edited while they are manual. It is no step of undo before one of
/// them is accepted, and nothing that is saved: what could be redone stays.
void OrbitView::fixScale() {
    AxisLimits limits = axisLimits(*plane_);
    if (std::exchange(limits.manual, true)) return;
    plane_->tryOut(withLimits(*plane_, limits));
}

void OrbitView::noticeLimits(int run) {
    if (!plane_->isTryingOut()) return bench_.noticeSettings(*plane_, tr("limits"), run);
    if (!bench_.has(*plane_) || !plane_->readBack()) return;
    const Settings accepted = plane_->settings();
    plane_->endTrial();
    bench_.setSettings(*plane_, accepted, tr("limits"), run);
}

/// Edits one limit after the other for as long as the user goes on from the last one.
void OrbitView::walkFrom(std::size_t limit, int run) {
    const QPointer<OrbitView> alive(this);
    bool walked = false;
    while (alive) {
        const LimitEditor::Way way = editor_.takeWay();
        if (way == LimitEditor::Way::Nowhere) break;
        const std::size_t count = std::max<std::size_t>(1, limitPlaces_.size());
        limit = (limit + (way == LimitEditor::Way::Next ? 1 : count - 1)) % count;
        editLimit(limit, run);
        walked = true;
    }
    if (alive && walked) returnPointer();
}

// The numbers of a frame stand elsewhere once a limit has changed.
void OrbitView::editLimit(std::size_t limit, int run) {
    const QPointer<OrbitView> alive(this);
    repaint();
    if (limit >= limitPlaces_.size()) return;
    click(limitPlaces_[limit]);
    if (alive) noticeLimits(run);
}

// The strip runs from the one limit of its axis to the other: their middle is in it.
void OrbitView::fitAxis(Axis axis) {
    if (editor_.isEditing()) return;
    repaint();
    const std::size_t first = axis == Axis::Across ? 0 : 2;
    if (limitPlaces_.size() < first + 2) return;
    click((limitPlaces_[first] + limitPlaces_[first + 1]) / 2);
    bench_.noticeSettings(*plane_, tr("limits"), bench_.beginRun());
    returnPointer();
}

void OrbitView::click(QPoint place) {
    send([place](HostKit::DrivenControl& control) {
        control.movePointer(place.x(), place.y());
        control.pressButton(0, place.x(), place.y());
        control.releaseButton(0, place.x(), place.y());
    });
}

/// The control's pointer goes back to where the display's is; out of the way if that is elsewhere.
void OrbitView::returnPointer() {
    const QPoint place = underMouse() ? mapFromGlobal(QCursor::pos()) : QPoint(-1, -1);
    const bool inside = underMouse();
    send([place, inside](HostKit::DrivenControl& control) {
        control.movePointer(place.x(), place.y());
        if (!inside) control.leavePointer();
    });
    update();
}

void OrbitView::wheelEvent(QWheelEvent* event) {
    const QPoint place = placeOf(*event);
    const bool forward = event->angleDelta().y() > 0;
    send(
        [&](HostKit::DrivenControl& control) { control.turnWheel(forward, place.x(), place.y()); });
    event->accept();
}

void OrbitView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    Q_EMIT chosen(plane_.get());
}

void OrbitView::invalidated() {
    update();
}

void OrbitView::setupRefreshed() {
    // The control is in the middle of a message; it is asked when that is over.
    QMetaObject::invokeMethod(
        this, [this] { bench_.noticeSettings(*plane_); }, Qt::QueuedConnection);
}

HostKit::EditAnswer OrbitView::editText(std::int32_t x, std::int32_t y, const std::wstring& text) {
    return editor_.edit({x, y}, QString::fromStdWString(text));
}

void OrbitView::messageShown(const std::wstring& text) {
    bench_.report(QString::fromStdWString(text));
}

}  // namespace Rotavue::Workbench
