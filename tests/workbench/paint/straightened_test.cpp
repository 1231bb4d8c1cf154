#include "workbench/paint/straightened.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace Rotavue::Workbench {
namespace {

using Points = std::vector<QPoint>;

double distanceToSegment(QPoint p, QPoint a, QPoint b) {
    const QPointF way = b - a;
    const double length = std::hypot(way.x(), way.y());
    const QPointF from = p - a;
    if (length == 0.0) return std::hypot(from.x(), from.y());
    const double along =
        std::clamp((from.x() * way.x() + from.y() * way.y()) / length, 0.0, length);
    const QPointF foot = way * (along / length);
    return std::hypot(from.x() - foot.x(), from.y() - foot.y());
}

double distanceToLine(QPoint p, const Points& line) {
    double least = 1e300;
    for (std::size_t i = 1; i < line.size(); ++i) {
        least = std::min(least, distanceToSegment(p, line[i - 1], line[i]));
    }
    return least;
}

TEST(Straightened, AStaircaseOfPixelsIsOneLine) {
    // y = x / 2 cut to whole pixels.
    Points stairs;
    for (int x = 0; x <= 20; ++x)
        stairs.emplace_back(x, x / 2);
    EXPECT_EQ(straightened(stairs), (Points{{0, 0}, {20, 10}}));
}

TEST(Straightened, ACornerStays) {
    EXPECT_EQ(straightened(Points{{0, 0}, {5, 0}, {10, 0}, {10, 5}, {10, 10}}),
              (Points{{0, 0}, {10, 0}, {10, 10}}));
}

TEST(Straightened, ALineThatTurnsBackReachesItsFarthestPoint) {
    EXPECT_EQ(straightened(Points{{0, 0}, {10, 0}, {4, 0}}), (Points{{0, 0}, {10, 0}, {4, 0}}));
}

TEST(Straightened, RepeatedPointsGo) {
    EXPECT_EQ(straightened(Points{{3, 3}, {3, 3}, {3, 3}}), (Points{{3, 3}}));
    EXPECT_EQ(straightened(Points{{0, 0}, {0, 0}, {9, 0}, {9, 0}}), (Points{{0, 0}, {9, 0}}));
}

TEST(Straightened, NothingStaysNothing) {
    EXPECT_TRUE(straightened({}).empty());
}

TEST(Straightened, NoPointLiesFartherOffThanTheTolerance) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> step(-2, 3);
    for (int round = 0; round < 200; ++round) {
        Points walk{{0, 0}};
        for (int i = 0; i < 60; ++i)
            walk.push_back(walk.back() + QPoint(step(random), step(random)));
        const Points line = straightened(walk);
        ASSERT_EQ(line.front(), walk.front());
        ASSERT_EQ(line.back(), walk.back());
        if (line.size() < 2) continue;
        for (const QPoint point : walk)
            ASSERT_LE(distanceToLine(point, line), 0.75 + 1e-9);
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
