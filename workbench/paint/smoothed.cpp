#include "workbench/paint/smoothed.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

namespace {

using Line = std::vector<QPointF>;

double cross(QPointF a, QPointF b) {
    return a.x() * b.y() - a.y() * b.x();
}

double square(QPointF way) {
    return QPointF::dotProduct(way, way);
}

/// The directions from one point in which a straight line passes all later ones closely enough:
/// those between two rays that are never as much as half a turn apart.
class Sector {
public:
    explicit Sector(QPointF apex) : apex_(apex) {}

    /// Takes the point in and answers whether a straight line to it still passes all points taken
    /// in before. It does not when the point turns back: the line would fall short of them.
    bool take(QPointF point) {
        const QPointF way = point - apex_;
        const double distance = square(way);
        if (distance < farthest_) return false;
        if (narrowed_ && (cross(least_, way) < 0.0 || cross(way, most_) < 0.0)) return false;
        constexpr double Nearest = Tolerance * Tolerance;
        if (distance > Nearest) narrow(way, std::sqrt(distance - Nearest));
        farthest_ = distance;
        return true;
    }

private:
    static constexpr double Tolerance = 0.1;

    /// The rays that touch the circle of the tolerance about the point; `reach` is their length.
    void narrow(QPointF way, double reach) {
        const QPointF aside = QPointF(-way.y(), way.x()) * Tolerance;
        const QPointF before = way * reach - aside;
        const QPointF behind = way * reach + aside;
        if (!narrowed_ || cross(least_, before) > 0.0) least_ = before;
        if (!narrowed_ || cross(behind, most_) > 0.0) most_ = behind;
        narrowed_ = true;
    }

    QPointF apex_;
    double farthest_ = 0.0;  ///< squared distance
    bool narrowed_ = false;
    QPointF least_;
    QPointF most_;
};

Line withoutRepeats(std::span<const QPoint> points) {
    Line line;
    for (const QPoint point : points)
        if (line.empty() || line.back() != QPointF(point)) line.emplace_back(point);
    return line;
}

/// How far the points stand off the middle of their neighbours decides which may move.
std::vector<bool> corners(const Line& line) {
    constexpr double OnePixel = 1.0;
    std::vector<bool> result(line.size(), true);
    for (std::size_t i = 1; i + 1 < line.size(); ++i) {
        const QPointF middle = (line[i - 1] + line[i + 1]) / 2.0;
        result[i] = square(middle - line[i]) > OnePixel;
    }
    return result;
}

/// One coordinate of all points, each of which may move between its bounds. Apart from the other
/// coordinate the compiler works on several points at once.
struct Coordinate {
    std::vector<double> at;
    std::vector<double> least;
    std::vector<double> most;
};

Coordinate coordinateOf(const Line& pixels, const std::vector<bool>& fixed,
                        double (*of)(const QPointF&)) {
    Coordinate result;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const double room = fixed[i] ? 0.0 : 0.5;  // within the pixel
        const double value = of(pixels[i]);
        result.at.push_back(value);
        result.least.push_back(value - room);
        result.most.push_back(value + room);
    }
    return result;
}

/// Moves each point toward the middle between its neighbours.
void relax(Coordinate& coordinate, std::vector<double>& next) {
    const std::vector<double>& at = coordinate.at;
    for (std::size_t i = 1; i + 1 < at.size(); ++i) {
        const double wanted = (at[i - 1] + 2.0 * at[i] + at[i + 1]) / 4.0;
        next[i] = std::min(std::max(wanted, coordinate.least[i]), coordinate.most[i]);
    }
    coordinate.at.swap(next);
}

std::vector<double> relaxed(Coordinate coordinate) {
    constexpr int Passes = 24;
    std::vector<double> next = coordinate.at;
    for (int pass = 0; pass < Passes; ++pass)
        relax(coordinate, next);
    return std::move(coordinate.at);
}

Line thinned(const Line& line) {
    Line kept{line.front()};
    Sector sector(line.front());
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (sector.take(line[i])) continue;
        kept.push_back(line[i - 1]);
        sector = Sector(line[i - 1]);
        sector.take(line[i]);
    }
    if (line.size() > 1) kept.push_back(line.back());
    return kept;
}

}  // namespace

std::vector<QPointF> smoothed(std::span<const QPoint> points) {
    Line line = withoutRepeats(points);
    if (line.size() < 3) return line;
    const std::vector<bool> fixed = corners(line);
    const auto x =
        relaxed(coordinateOf(line, fixed, [](const QPointF& point) { return point.x(); }));
    const auto y =
        relaxed(coordinateOf(line, fixed, [](const QPointF& point) { return point.y(); }));
    for (std::size_t i = 0; i < line.size(); ++i)
        line[i] = {x[i], y[i]};
    return thinned(line);
}

}  // namespace Rotavue::Workbench
