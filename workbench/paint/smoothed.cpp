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

QPointF inPixel(QPointF point, QPointF pixel) {
    constexpr double Half = 0.5;
    return {std::clamp(point.x(), pixel.x() - Half, pixel.x() + Half),
            std::clamp(point.y(), pixel.y() - Half, pixel.y() + Half)};
}

void relax(Line& line, const Line& pixels, const std::vector<bool>& fixed) {
    QPointF before = line.front();
    for (std::size_t i = 1; i + 1 < line.size(); ++i) {
        const QPointF here = line[i];
        if (!fixed[i]) line[i] = inPixel((before + 2.0 * here + line[i + 1]) / 4.0, pixels[i]);
        before = here;
    }
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
    constexpr int Passes = 24;
    const Line pixels = withoutRepeats(points);
    if (pixels.size() < 3) return pixels;
    const std::vector<bool> fixed = corners(pixels);
    Line line = pixels;
    for (int pass = 0; pass < Passes; ++pass)
        relax(line, pixels, fixed);
    return thinned(line);
}

}  // namespace Rotavue::Workbench
