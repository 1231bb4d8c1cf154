#include "workbench/paint/straightened.h"

#include <QPointF>

#include <cmath>

namespace Rotavue::Workbench {

namespace {

constexpr double Tolerance = 0.75;

double cross(QPointF a, QPointF b) {
    return a.x() * b.y() - a.y() * b.x();
}

/// The directions from one point in which a straight line passes all later ones closely enough.
/// They are those between two rays, which are never as much as half a turn apart: the nearest two
/// points lie a whole pixel apart, and that is more than the tolerance.
class Sector {
public:
    explicit Sector(QPoint apex) : apex_(apex) {}

    /// Takes the point in and answers whether a straight line to it still passes all points taken
    /// in before. It does not when the point turns back: the line would fall short of them.
    bool take(QPoint point) {
        const QPointF way = point - apex_;
        const double square = QPointF::dotProduct(way, way);
        if (square < farthest_) return false;
        if (farthest_ > 0.0 && (cross(least_, way) < 0.0 || cross(way, most_) < 0.0)) return false;
        narrow(way, std::sqrt(square - Tolerance * Tolerance));
        farthest_ = square;
        return true;
    }

private:
    /// The rays that touch the circle of the tolerance about the point; `reach` is their length.
    void narrow(QPointF way, double reach) {
        const QPointF aside = QPointF(-way.y(), way.x()) * Tolerance;
        const QPointF before = way * reach - aside;
        const QPointF behind = way * reach + aside;
        if (farthest_ == 0.0 || cross(least_, before) > 0.0) least_ = before;
        if (farthest_ == 0.0 || cross(behind, most_) > 0.0) most_ = behind;
    }

    QPoint apex_;
    double farthest_ = 0.0;  ///< squared distance; 0: nothing taken in
    QPointF least_;
    QPointF most_;
};

}  // namespace

std::vector<QPoint> straightened(std::span<const QPoint> points) {
    std::vector<QPoint> kept;
    if (points.empty()) return kept;
    kept.push_back(points.front());
    Sector sector(points.front());
    QPoint last = points.front();
    for (const QPoint point : points) {
        if (point == last) continue;
        if (!sector.take(point)) {
            kept.push_back(last);
            sector = Sector(last);
            sector.take(point);
        }
        last = point;
    }
    if (last != kept.back()) kept.push_back(last);
    return kept;
}

}  // namespace Rotavue::Workbench
