#pragma once

#include "workbench/analysis/time_span.h"
#include "workbench/window/docks/lane_painter.h"
#include "workbench/window/docks/plot_colors.h"
#include "workbench/window/docks/plot_range.h"
#include "workbench/window/docks/plot_ticks.h"
#include "workbench/window/docks/sample_trace.h"

#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace Rotavue::Workbench {

enum class LaneColor { X, Y, Neutral };

/// One trace over time and where it stands: lanes lie one above the other.
struct PlotLane {
    QString name;
    QString unit;
    LaneColor color = LaneColor::Neutral;
    std::shared_ptr<const SampleTrace> trace;
    int decimals = 2;        ///< of the value at the cursor
    bool fromZero = false;   ///< the value axis holds 0
    bool tellsLast = false;  ///< in a gap the value before it is told, with its time
};

/// What stands above a lane: its name, and the value at the cursor where there is one.
QString titleOf(const PlotLane& lane, double cursor);

/// Traces over time with the time cursor, moments that are marked with dots, and a stretch that the
/// user marks.
///
///     drag                       moves the cursor
///     Ctrl+drag, I and O         marks a stretch; its begin and its end at the cursor; Delete
///     wheel                      zooms about the pointer; Shift: time alone, Ctrl: values alone
///     + and -                    zoom the time about the cursor
///     Ctrl+Left, Ctrl+Right      the stretch before, the next one
///     double click, 0            shows everything
///
/// The traces are painted once for each view into a pixmap; moving the cursor paints that pixmap
/// and a line.
class TimePlot final : public QWidget {
    Q_OBJECT

public:
    explicit TimePlot(QWidget* parent = nullptr);

    /// Shows these, all from the first sample to the last of the longest. Where they last as long
    /// as those before, the same recording in another form, say, the time stays that is looked at.
    void setLanes(std::vector<PlotLane> lanes);

    /// The moments that get a dot on every lane, rising, in s.
    void setDots(std::vector<double> times);

    /// What stands in the plot while there is no lane.
    void setEmptyText(const QString& text);

    /// Puts the cursor there, and turns to the page on which it is; tells nobody.
    void setCursor(double time);

    /// Shows that stretch as marked, or none; tells nobody.
    void setMark(const std::optional<TimeSpan>& mark);

    void resetView();

    double cursor() const { return cursor_; }
    const std::optional<TimeSpan>& mark() const { return mark_; }
    const PlotRange& timeRange() const { return time_; }
    const PlotRange& valueRange(std::size_t lane) const { return values_[lane]; }

    /// Where that lane lies on the widget.
    LaneMapping mapping(std::size_t lane) const;

    QSize sizeHint() const override { return {520, 220}; }
    QSize minimumSizeHint() const override { return {160, 80}; }

Q_SIGNALS:
    /// The user has moved the cursor to that time, in s.
    void cursorMoved(double time);

    /// The user has marked a stretch, or has taken the mark away.
    void markChanged(const std::optional<Rotavue::Workbench::TimeSpan>& mark);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    PlotRange everything() const { return {0.0, duration_}; }
    void showTime(const PlotRange& range);
    void zoom(const QPointF& at, double factor, bool time, bool values);
    void moveCursor(double time);
    void changeMark(const std::optional<TimeSpan>& mark);
    void markFromCursor(bool begin);
    void repaintTraces();
    QRectF plotArea() const;
    double laneHeight() const;
    std::vector<PlotTick> ticksOf(const PlotRange& values) const;

    void paintTraces(QPainter& painter) const;
    void paintAxes(QPainter& painter, const LaneMapping& lane) const;
    void paintTimeAxis(QPainter& painter) const;
    void paintMark(QPainter& painter) const;
    void paintCursor(QPainter& painter) const;
    QColor colorOf(LaneColor color) const;

    std::vector<PlotLane> lanes_;
    std::vector<PlotRange> values_;  ///< of each lane's axis
    std::vector<double> dots_;
    QString emptyText_;
    double duration_ = 0.0;
    double cursor_ = 0.0;
    std::optional<TimeSpan> mark_;
    std::optional<double> markStart_;  ///< while a stretch is being dragged
    PlotRange time_;
    struct {
        double duration = 0.0;
        PlotRange time;
    } lookedAt_;  ///< of the lanes before
    QPixmap traces_;
    PlotColors colors_;
};

}  // namespace Rotavue::Workbench
