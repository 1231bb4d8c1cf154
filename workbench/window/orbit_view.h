#pragma once

#include "host_kit/memory/host_listener.h"
#include "workbench/bench/bench.h"
#include "workbench/window/limit_editor.h"

#include <QPoint>
#include <QWidget>

#include <memory>
#include <vector>

namespace Rotavue::Workbench {

/// The area of one control: what the control draws with message 42, and what the user's pointer
/// does there as messages to it. It is the listener of the plane's host.
///
/// Coordinates are those of the widget: on a screen with more pixels a line is drawn with as many
/// of them as it takes, and the control knows nothing of it.
class OrbitView : public QWidget, public HostKit::HostListener {
    Q_OBJECT

public:
    OrbitView(Bench& bench, std::shared_ptr<Plane> plane, QWidget* parent = nullptr);
    ~OrbitView() override;

    Plane& plane() const { return *plane_; }

    /// The editor that lies over a limit while it is changed.
    LimitEditor& editor() { return editor_; }

    /// Lets the user edit the limits without a pointer: the first one, and from there on whichever
    /// Tab and Shift+Tab lead to. Returns when the user is done. An automatic scale becomes manual
    /// with the first limit that is accepted. All of it is one step of undo.
    void editLimits();

    enum class Axis { Across, Upright };

    /// Does what a click on the strip along that axis does: a control whose limits are manual fits
    /// them to the data.
    void fitAxis(Axis axis);

    QSize minimumSizeHint() const override { return {220, 220}; }
    QSize sizeHint() const override { return {520, 480}; }

    // What the control asks for.

    void invalidated() override;
    void setupRefreshed() override;
    HostKit::EditAnswer editText(std::int32_t x, std::int32_t y, const std::wstring& text) override;
    void messageShown(const std::wstring& text) override;

Q_SIGNALS:
    /// The user has turned to this control.
    void chosen(Plane* plane);

    /// A frame has been drawn.
    void drawn();

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    /// Runs one message and reports what it fails with.
    template <class Message>
    void send(Message message);

    void fixScale();
    void noticeLimits(int run);
    void editLimit(std::size_t limit, int run);
    void walkFrom(std::size_t limit, int run);
    std::size_t nearestLimit(QPoint place) const;
    void click(QPoint place);
    void returnPointer();

    Bench& bench_;
    std::shared_ptr<Plane> plane_;
    LimitEditor editor_;
    QString lastFailure_;
    std::vector<QPoint> limitPlaces_;  ///< where the last frame has its limits
};

}  // namespace Rotavue::Workbench
