#include "workbench/analysis/order_fit.h"

#include <gtest/gtest.h>

#include <vector>

namespace Rotavue::Workbench {
namespace {

constexpr OrderVectors Slow{0.43, {5, 200}, {3, 10}};
constexpr OrderVectors First{1.0, {40, 30}, {38, 120}};
constexpr OrderVectors Second{2.0, {8, 60}, {7, 150}};

// Feeds `turns` turns of the sum of those orders, a mean and a drift, at 100 samples a turn.
void feed(OrderFit& fit, double turns, const std::vector<OrderVectors>& orders, double drift) {
    const double share = 0.01;
    for (double turn = 0.0; turn < turns - 0.5 * share; turn += share) {
        double x = 7.0 + drift * turn;
        double y = -3.0;
        for (const OrderVectors& order : orders) {
            x += order.x.valueAt(order.order, turn);
            y += order.y.valueAt(order.order, turn);
        }
        fit.add(turn, share, x, y);
    }
}

void expectVectors(const OrderVectors& found, const OrderVectors& truth, double tolerance) {
    EXPECT_EQ(found.order, truth.order);
    EXPECT_NEAR(found.x.amplitude, truth.x.amplitude, tolerance);
    EXPECT_NEAR(found.y.amplitude, truth.y.amplitude, tolerance);
    EXPECT_NEAR(found.x.phaseLag, truth.x.phaseLag, 10.0 * tolerance);
    EXPECT_NEAR(found.y.phaseLag, truth.y.phaseLag, 10.0 * tolerance);
}

TEST(OrderFit, FindsAllOrdersThatAreThereExactly) {
    const std::vector<OrderVectors> truth = {Slow, First, Second};
    OrderFit fit(std::vector<double>{0.43, 1.0, 2.0}, 0.0, 10.0);
    feed(fit, 10.0, truth, 0.5);
    const std::vector<OrderVectors> found = fit.solve();
    ASSERT_EQ(found.size(), 3u);
    for (std::size_t i = 0; i < truth.size(); ++i)
        expectVectors(found[i], truth[i], 1e-9);
}

TEST(OrderFit, KeepsOutAWhirlThatIsNotAskedFor) {
    OrderFit fit(std::vector<double>{1.0}, 0.0, 20.0);
    feed(fit, 20.0, {Slow, First}, 0.0);
    // 0.57 orders away are 11 cycles in the window: a Hann window leaves less than a thousandth.
    expectVectors(fit.solve().at(0), First, 5e-3);
}

TEST(OrderFit, OfOneTurnTellsWholeOrdersApart) {
    OrderFit fit(std::vector<double>{1.0}, 0.0, 1.0);
    feed(fit, 1.0, {First, Second}, 0.0);
    expectVectors(fit.solve().at(0), First, 1e-9);
}

TEST(OrderFit, IsEmptyWithoutEnoughSamples) {
    OrderFit fit(std::vector<double>{1.0, 2.0}, 0.0, 1.0);
    EXPECT_TRUE(fit.solve().empty());
    fit.add(0.1, 0.5, 1.0, 1.0);
    fit.add(0.6, 0.5, 1.0, 1.0);
    EXPECT_EQ(fit.count(), 2u);
    EXPECT_TRUE(fit.solve().empty());
}

}  // namespace
}  // namespace Rotavue::Workbench
