#include "workbench/window/orbit_view.h"

#include "plugin/framework/color_scheme.h"
#include "workbench/paint/host_color.h"
#include "workbench/paint/painter_canvas.h"
#include "workbench/paint/painting_studio.h"

#include <QEnterEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QWheelEvent>

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

}  // namespace

OrbitView::OrbitView(Bench& bench, std::shared_ptr<Plane> plane, QWidget* parent)
    : QWidget(parent), bench_(bench), plane_(std::move(plane)), editor_(*this) {
    setObjectName("orbitView");
    setAccessibleName(tr("Orbit of %1").arg(QString::fromStdString(plane_->name())));
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
    send([&](HostKit::DrivenControl& control) {
        PainterCanvas canvas(painter, size(),
                             {.fontHeight = suitableTextHeight(width(), height())});
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
    send([&](HostKit::DrivenControl& control) {
        control.releaseButton(button, place.x(), place.y());
    });
    if (alive) bench_.noticeSettings(*plane_, tr("limits"));
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
