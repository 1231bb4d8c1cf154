#pragma once

#include <QPoint>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class QPainter;

namespace Rotavue::Workbench {

/// How lines come out. docs/paint.md tells what was measured.
///
/// - `Pixels`: exactly the pixels of one `drawLine` for each `LineTo`, without antialiasing.
/// - `Smooth`: antialiased, joined lines without the staircase of whole pixels. For pictures.
enum class LineQuality : std::uint8_t { Pixels, Smooth };

/// Lines that were asked for and not drawn yet. Stroking many of them at once is what makes a long
/// trace cheap.
class LineRun {
public:
    void moveTo(QPoint point);
    void lineTo(QPoint point);

    /// Draws what was gathered with the painter's pen and forgets it, but for the current position.
    void strokeOn(QPainter& painter, LineQuality quality);

    bool empty() const { return points_.empty(); }

    /// Enough is gathered to be stroked: more would only take memory.
    bool full() const { return points_.size() >= Fullest; }

private:
    static constexpr std::size_t Fullest = 8192;

    std::vector<std::span<const QPoint>> chains() const;

    QPoint position_;
    std::vector<QPoint> points_;
    std::vector<std::size_t> starts_;  ///< where in `points_` each connected chain begins
    bool connected_ = false;           ///< `points_` ends with `position_`
};

}  // namespace Rotavue::Workbench
