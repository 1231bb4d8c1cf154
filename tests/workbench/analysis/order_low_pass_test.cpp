#include "workbench/analysis/order_low_pass.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

namespace Rotavue::Workbench {
namespace {

using Signal = std::vector<std::complex<double>>;

constexpr int PerTurn = 64;
constexpr double TwoPi = 2.0 * std::numbers::pi;

Signal signalOf(int turns, const std::function<std::complex<double>(double)>& value) {
    Signal signal;
    for (int i = 0; i <= turns * PerTurn; ++i)
        signal.push_back(value(static_cast<double>(i) / PerTurn));
    return signal;
}

double largestDifference(const Signal& a, const Signal& b) {
    EXPECT_EQ(a.size(), b.size());
    double largest = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i)
        largest = std::max(largest, std::abs(a[i] - b[i]));
    return largest;
}

TEST(OrderLowPass, LetsTheMeanPassWholeUpToTheEnds) {
    const Signal signal = signalOf(20, [](double) { return std::complex<double>(-200.0, 30.0); });
    EXPECT_LT(largestDifference(lowOrders(signal, PerTurn, {}), signal), 1e-9);
}

TEST(OrderLowPass, TakesWholeOrdersOutUpToTheEndsWhateverTheirPhase) {
    for (double lag = 0.0; lag < 6.0; lag += 0.7) {
        const Signal signal = signalOf(20, [lag](double turns) {
            return std::complex<double>(40.0 * std::cos(TwoPi * turns - lag),
                                        8.0 * std::sin(2.0 * TwoPi * turns + lag));
        });
        const Signal nothing(signal.size());
        // 48 is what goes in. The continuation fades out beyond the ends, which leaves a
        // thousandth.
        EXPECT_LT(largestDifference(lowOrders(signal, PerTurn, {}), nothing), 0.06) << lag;
    }
}

TEST(OrderLowPass, LeavesAWhirlInItsPlaceBesideALargeFirstOrder) {
    const auto whirl = [](double turns) { return 5.0 * std::polar(1.0, TwoPi * 0.43 * turns); };
    const Signal truth = signalOf(60, whirl);
    const Signal signal = signalOf(
        60, [&](double turns) { return whirl(turns) + 40.0 * std::polar(1.0, TwoPi * turns); });
    const Signal low = lowOrders(signal, PerTurn, {});
    EXPECT_LT(largestDifference(low, truth), 0.5);  // a tenth of the whirl, at the very ends
    const Signal inner(low.begin() + 5 * PerTurn, low.end() - 5 * PerTurn);
    const Signal innerTruth(truth.begin() + 5 * PerTurn, truth.end() - 5 * PerTurn);
    EXPECT_LT(largestDifference(inner, innerTruth), 0.05);
}

TEST(OrderLowPass, TreatsBothProbesAlikeAndApart) {
    const Signal signal = signalOf(
        20, [](double turns) { return std::complex<double>(std::cos(TwoPi * 0.3 * turns), 0.0); });
    Signal turned;
    for (const auto& value : signal)
        turned.emplace_back(0.0, value.real());
    const Signal x = lowOrders(signal, PerTurn, {});
    const Signal y = lowOrders(turned, PerTurn, {});
    for (std::size_t i = 0; i < x.size(); ++i) {
        EXPECT_NEAR(x[i].imag(), 0.0, 1e-9);
        EXPECT_NEAR(y[i].imag(), x[i].real(), 1e-9);
    }
}

TEST(OrderLowPass, FallsAlongHalfACosineBetweenItsBounds) {
    // Halfway between 0.8 and 0.95 half of the amplitude is left.
    const auto value = [](double turns) { return std::polar(1.0, TwoPi * 0.875 * turns); };
    const Signal low = lowOrders(signalOf(400, value), PerTurn, {});
    EXPECT_NEAR(std::abs(low[200 * PerTurn]), 0.5, 0.01);
}

}  // namespace
}  // namespace Rotavue::Workbench
