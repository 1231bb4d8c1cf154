#include "plugin/orbit_graph/nearest_search.h"

#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(NearestSearch, BeginsAtThePointerWithTheLargestDistance) {
    NearestSample nearest;
    nearest.found = true;
    nearest.x = 5;
    const NearestSearch search(nearest, {3, 4});
    EXPECT_FALSE(nearest.found);
    EXPECT_EQ(nearest.position, (Point{3, 4}));
    EXPECT_EQ(nearest.distance, std::numeric_limits<double>::max());
    EXPECT_EQ(nearest.x, 5);
}

TEST(NearestSearch, KeepsTheNearestAndTheFirstOfEquals) {
    NearestSample nearest;
    NearestSearch search(nearest, {0, 0});
    const OrbitCurve curve = curveOf(OrbitKind::Average);
    search.beginCurve(curve);
    EXPECT_TRUE(search.offer({1, 1}, {3, 4}));
    EXPECT_FALSE(search.offer({2, 2}, {5, 0}));
    EXPECT_TRUE(search.offer({3, 3}, {0, 4}));
    EXPECT_EQ(nearest.x, 3);
    EXPECT_EQ(nearest.position, (Point{0, 4}));
    EXPECT_EQ(nearest.distance, 4);
    EXPECT_EQ(nearest.kind, OrbitKind::Average);
    EXPECT_TRUE(nearest.found);
}

TEST(NearestSearch, ComparesRootsWhereSquaresDiffer) {
    NearestSample nearest;
    NearestSearch search(nearest, {0, 0});
    const OrbitCurve curve = curveOf(OrbitKind::Raw);
    search.beginCurve(curve);
    // 4 + 9e-16 is the next double above 4, and the root of both is 2.
    ASSERT_GT(2.0 * 2.0 + 3e-8 * 3e-8, 4.0);
    EXPECT_TRUE(search.offer({1, 1}, {2, 3e-8}));
    EXPECT_EQ(nearest.distance, 2);
    EXPECT_FALSE(search.offer({2, 2}, {2, 0}));
    EXPECT_EQ(nearest.x, 1);
}

TEST(NearestSearch, TellsTheCurveOfItsMatch) {
    NearestSample nearest;
    NearestSearch search(nearest, {0, 0});
    const OrbitCurve first = curveOf(OrbitKind::Raw, 1, L"first", L"um");
    const OrbitCurve second = curveOf(OrbitKind::Reference, 2, L"second", L"mil");
    search.beginCurve(first);
    search.offer({1, 1}, {9, 0});
    search.beginCurve(second);
    EXPECT_EQ(nearest.info.name, L"first");
    search.offer({2, 2}, {10, 0});
    EXPECT_EQ(nearest.info.name, L"first");
    search.offer({3, 3}, {8, 0});
    EXPECT_EQ(nearest.info, second.info);
    EXPECT_EQ(nearest.kind, OrbitKind::Reference);
}

TEST(NearestSearch, TakesTheNameOfACurveOnceHoweverManySamplesAreNearer) {
    NearestSample nearest;
    NearestSearch search(nearest, {0, 0});
    const OrbitCurve curve = curveOf(OrbitKind::Raw, 1, L"curve", L"um");
    search.beginCurve(curve);
    search.offer({1, 1}, {9, 0});
    nearest.info.name = L"mark";
    EXPECT_TRUE(search.offer({2, 2}, {8, 0}));
    EXPECT_EQ(nearest.info.name, L"mark");
    search.beginCurve(curve);
    EXPECT_TRUE(search.offer({3, 3}, {7, 0}));
    EXPECT_EQ(nearest.info, curve.info);
}

TEST(NearestSearch, TakesTheNameAnewWhenAnotherFrameCameBetween) {
    NearestSample nearest;
    const OrbitCurve curve = curveOf(OrbitKind::Raw, 1, L"curve", L"um");
    const OrbitCurve other = curveOf(OrbitKind::Raw, 2, L"other", L"mil");
    NearestSearch search(nearest, {0, 0});
    search.beginCurve(curve);
    search.offer({1, 1}, {9, 0});
    NearestSearch inner(nearest, {0, 0});
    inner.beginCurve(other);
    inner.offer({2, 2}, {8, 0});
    EXPECT_EQ(nearest.info.name, L"other");
    EXPECT_TRUE(search.offer({3, 3}, {7, 0}));
    EXPECT_EQ(nearest.info, curve.info);
}

TEST(NearestSearch, PassesOverWhatHasNoDistance) {
    NearestSample nearest;
    NearestSearch search(nearest, {0, 0});
    const OrbitCurve curve = curveOf(OrbitKind::Raw);
    search.beginCurve(curve);
    EXPECT_FALSE(search.offer({1, 1}, {std::numeric_limits<double>::quiet_NaN(), 0}));
    EXPECT_FALSE(search.offer({1, 1}, {1e200, 0}));
    EXPECT_FALSE(nearest.found);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
