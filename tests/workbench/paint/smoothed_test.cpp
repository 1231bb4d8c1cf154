#include "workbench/paint/smoothed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace Rotavue::Workbench {
namespace {

using Points = std::vector<QPoint>;
using Line = std::vector<QPointF>;

double distanceToSegment(QPointF p, QPointF a, QPointF b) {
    const QPointF way = b - a;
    const double length = std::hypot(way.x(), way.y());
    const QPointF from = p - a;
    if (length == 0.0) return std::hypot(from.x(), from.y());
    const double along =
        std::clamp((from.x() * way.x() + from.y() * way.y()) / length, 0.0, length);
    const QPointF foot = way * (along / length);
    return std::hypot(from.x() - foot.x(), from.y() - foot.y());
}

double distanceToLine(QPointF p, const Line& line) {
    double least = 1e300;
    for (std::size_t i = 1; i < line.size(); ++i) {
        least = std::min(least, distanceToSegment(p, line[i - 1], line[i]));
    }
    return least;
}

/// How far the line turns at its sharpest vertex, in degrees.
double sharpestTurn(const Line& line) {
    double sharpest = 0.0;
    for (std::size_t i = 2; i < line.size(); ++i) {
        const QPointF before = line[i - 1] - line[i - 2];
        const QPointF behind = line[i] - line[i - 1];
        const double turn = std::atan2(before.x() * behind.y() - before.y() * behind.x(),
                                       QPointF::dotProduct(before, behind));
        sharpest = std::max(sharpest, std::abs(turn) * 180.0 / std::numbers::pi);
    }
    return sharpest;
}

TEST(Smoothed, AStraightLineIsItsEnds) {
    Points line;
    for (int x = 0; x <= 20; ++x)
        line.emplace_back(x, 7);
    EXPECT_EQ(smoothed(line), (Line{{0, 7}, {20, 7}}));
}

TEST(Smoothed, AStaircaseLosesItsSteps) {
    // y = x / 2 cut to whole pixels turns by 45 degrees at every step.
    Points stairs;
    for (int x = 0; x <= 40; ++x)
        stairs.emplace_back(x, x / 2);
    const Line line = smoothed(stairs);
    EXPECT_LT(line.size(), stairs.size() / 2);
    EXPECT_LT(sharpestTurn(line), 10.0);
}

TEST(Smoothed, ACircleStaysRound) {
    // 360 points on a radius of 180 pixels: one degree a point. Cut to whole pixels the line turns
    // by up to 45 degrees at a point.
    Points circle;
    for (int degree = 0; degree < 360; ++degree) {
        const double angle = degree * std::numbers::pi / 180.0;
        circle.emplace_back(200 + static_cast<int>(180.0 * std::cos(angle)),
                            200 + static_cast<int>(180.0 * std::sin(angle)));
    }
    const Line line = smoothed(circle);
    EXPECT_LT(sharpestTurn(line), 12.0);
    for (const QPointF point : line) {
        EXPECT_NEAR(std::hypot(point.x() - 200.0, point.y() - 200.0), 180.0, 1.5);
    }
}

TEST(Smoothed, ACornerStays) {
    EXPECT_EQ(smoothed(Points{{0, 0}, {5, 0}, {10, 0}, {10, 5}, {10, 10}}),
              (Line{{0, 0}, {10, 0}, {10, 10}}));
}

TEST(Smoothed, ALineThatTurnsBackReachesItsFarthestPoint) {
    EXPECT_EQ(smoothed(Points{{0, 0}, {10, 0}, {4, 0}}), (Line{{0, 0}, {10, 0}, {4, 0}}));
}

TEST(Smoothed, RepeatedPointsGo) {
    EXPECT_EQ(smoothed(Points{{3, 3}, {3, 3}, {3, 3}}), (Line{{3, 3}}));
    EXPECT_EQ(smoothed(Points{{0, 0}, {0, 0}, {9, 0}, {9, 0}}), (Line{{0, 0}, {9, 0}}));
}

TEST(Smoothed, NothingStaysNothing) {
    EXPECT_TRUE(smoothed({}).empty());
}

TEST(Smoothed, NoPointLeavesItsPixelByMoreThanTheThinning) {
    // Half a pixel each way, and a tenth of one for the points left out.
    constexpr double Farthest = 0.5 * std::numbers::sqrt2 + 0.1 + 1e-9;
    std::mt19937 random(7);
    std::uniform_int_distribution<int> step(-2, 3);
    for (int round = 0; round < 200; ++round) {
        Points walk{{0, 0}};
        for (int i = 0; i < 60; ++i)
            walk.push_back(walk.back() + QPoint(step(random), step(random)));
        const Line line = smoothed(walk);
        ASSERT_EQ(line.front(), QPointF(walk.front()));
        ASSERT_EQ(line.back(), QPointF(walk.back()));
        for (const QPoint point : walk)
            ASSERT_LE(distanceToLine(point, line), Farthest);
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
