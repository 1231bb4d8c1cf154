#include "workbench/paint/line_run.h"

#include "workbench/paint/smoothed.h"

#include <QLine>
#include <QPaintEngine>
#include <QPainter>

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

using Chain = std::span<const QPoint>;

using SmoothLine = std::vector<QPointF>;

void strokePixels(QPainter& painter, const std::vector<Chain>& chains) {
    std::vector<QLine> lines;
    for (const Chain chain : chains)
        for (std::size_t i = 1; i < chain.size(); ++i)
            lines.emplace_back(chain[i - 1], chain[i]);
    painter.drawLines(lines.data(), static_cast<int>(lines.size()));
}

/// The outline of a polyline that crosses itself costs the painter more than its length tells.
void strokePolyline(QPainter& painter, const SmoothLine& line) {
    constexpr std::size_t LongestPiece = 256;
    for (std::size_t i = 0; i + 1 < line.size(); i += LongestPiece) {
        const std::size_t count = std::min(LongestPiece + 1, line.size() - i);
        painter.drawPolyline(line.data() + i, static_cast<int>(count));
    }
}

void strokeSingly(QPainter& painter, const SmoothLine& line) {
    std::vector<QLineF> lines;
    for (std::size_t i = 1; i < line.size(); ++i)
        lines.emplace_back(line[i - 1], line[i]);
    painter.drawLines(lines.data(), static_cast<int>(lines.size()));
}

/// Whether lines are wider than a pixel of an image: their outlines then are filled one by one, and
/// single lines come out the same as joined ones at a tenth of the cost.
bool fillsOutlines(const QPainter& painter) {
    return painter.paintEngine()->type() == QPaintEngine::Raster &&
           painter.deviceTransform().m11() * painter.pen().widthF() > 1.0;
}

/// What a pen leaves that does not move. The painter itself would put it beside its place.
void strokeDot(QPainter& painter, QPointF middle) {
    const double width = painter.pen().widthF();
    const QPointF half(width / 2.0, width / 2.0);
    painter.fillRect(QRectF(middle - half, QSizeF(width, width)), painter.pen().color());
}

void strokeSmooth(QPainter& painter, const std::vector<Chain>& chains) {
    const bool singly = fillsOutlines(painter);
    for (const Chain chain : chains) {
        const SmoothLine line = smoothed(chain);
        if (line.size() == 1) {
            strokeDot(painter, line.front());
        } else {
            singly ? strokeSingly(painter, line) : strokePolyline(painter, line);
        }
    }
}

}  // namespace

void LineRun::moveTo(QPoint point) {
    position_ = point;
    connected_ = false;
}

void LineRun::lineTo(QPoint point) {
    if (!connected_) {
        starts_.push_back(points_.size());
        points_.push_back(position_);
        connected_ = true;
    }
    points_.push_back(point);
    position_ = point;
}

void LineRun::strokeOn(QPainter& painter, LineQuality quality) {
    if (quality == LineQuality::Smooth) {
        strokeSmooth(painter, chains());
    } else {
        strokePixels(painter, chains());
    }
    points_.clear();
    starts_.clear();
    connected_ = false;
}

std::vector<Chain> LineRun::chains() const {
    std::vector<Chain> result;
    for (std::size_t i = 0; i < starts_.size(); ++i) {
        const std::size_t end = i + 1 < starts_.size() ? starts_[i + 1] : points_.size();
        result.push_back(Chain(points_).subspan(starts_[i], end - starts_[i]));
    }
    return result;
}

}  // namespace Rotavue::Workbench
