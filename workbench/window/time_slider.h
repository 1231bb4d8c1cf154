#pragma once

#include "workbench/bench/bench.h"

#include <QPointF>
#include <QPolygonF>
#include <QWidget>

namespace Rotavue::Workbench {

/// The whole length of the bench with the speed behind it; the cursor goes where the user points.
class TimeSlider : public QWidget {
    Q_OBJECT

public:
    explicit TimeSlider(Bench& bench, QWidget* parent = nullptr);

    /// The plane whose speed stands behind the time; null for none.
    void setCurrent(const Plane* plane);

    /// The highest speed of the trace in rpm; 0: there is no trace.
    double fastest() const { return fastest_; }

    QSize sizeHint() const override { return {400, 44}; }
    QSize minimumSizeHint() const override { return {120, 36}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void readSpeed();
    void moveCursorTo(double x);
    double xOf(double seconds) const;
    QPolygonF traceIn(const QRectF& area) const;

    Bench& bench_;
    const Plane* current_ = nullptr;
    QPolygonF speed_;  ///< s and rpm
    double fastest_ = 0.0;
};

}  // namespace Rotavue::Workbench
