#include "workbench/analysis/order_low_pass.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "workbench/analysis/long_transform.h"
#include "workbench/analysis/order_fit.h"

namespace Rotavue::Workbench {
namespace {

using Complex = std::complex<double>;
using Signal = std::vector<Complex>;

constexpr double EdgeOrders[] = {1.0, 2.0, 3.0};
constexpr std::size_t EdgeTurns = 8;
constexpr std::size_t ContinuedTurns = 16;

bool hasSmallFactors(std::size_t number) {
    for (const std::size_t factor : {2u, 3u, 5u}) {
        while (number % factor == 0)
            number /= factor;
    }
    return number == 1;
}

// The whole orders near one end of a signal. Index 0 is the end point, and indices grow inward.
class EdgeModel {
public:
    EdgeModel(const Signal& inward, int perTurn) : perTurn_(perTurn) {
        const std::size_t most = EdgeTurns * static_cast<std::size_t>(perTurn);
        const std::size_t count = std::min(most, inward.size() - 1);
        const double share = 1.0 / perTurn;
        OrderFit fit(EdgeOrders, 0.0, static_cast<double>(count) * share);
        for (std::size_t i = 0; i < count; ++i)
            fit.add(static_cast<double>(i) * share, share, inward[i].real(), inward[i].imag());
        orders_ = fit.solve();
    }

    // The model at an index, which may be below 0.
    Complex at(double index) const {
        Complex sum;
        for (const OrderVectors& order : orders_) {
            const double turns = index / perTurn_;
            sum +=
                Complex(order.x.valueAt(order.order, turns), order.y.valueAt(order.order, turns));
        }
        return sum;
    }

private:
    int perTurn_;
    std::vector<OrderVectors> orders_;
};

// What lies outside of the end point: the model goes on, the rest is turned about its end value.
class Continuation {
public:
    Continuation(const Signal& inward, int perTurn)
        : inward_(inward), model_(inward, perTurn), level_(inward[0] - model_.at(0.0)) {}

    // The end value without the whole orders.
    Complex level() const { return level_; }

    // The `count` values outside, the nearest first; the farther half fades into `common`, so that
    // both ends meet there without a step.
    Signal outside(std::size_t count, Complex common) const {
        Signal values;
        for (std::size_t i = 1; i <= count; ++i) {
            const auto index = static_cast<double>(i);
            const Complex turned = 2.0 * level_ - (inward_[i] - model_.at(index));
            const Complex value = model_.at(-index) + turned;
            values.push_back(common + fade(index / static_cast<double>(count)) * (value - common));
        }
        return values;
    }

private:
    static double fade(double part) {
        return part < 0.5 ? 1.0 : 0.5 - 0.5 * std::cos(2.0 * std::numbers::pi * part);
    }

    const Signal& inward_;
    EdgeModel model_;
    Complex level_;
};

double response(double order, const OrderBand& band) {
    if (order <= band.pass) return 1.0;
    if (order >= band.stop) return 0.0;
    const double part = (order - band.pass) / (band.stop - band.pass);
    return 0.5 + 0.5 * std::cos(std::numbers::pi * part);
}

void filterSpectrum(Signal& spectrum, int perTurn, const OrderBand& band) {
    const std::size_t size = spectrum.size();
    const double orderStep = static_cast<double>(perTurn) / static_cast<double>(size);
    for (std::size_t i = 0; i < size; ++i) {
        const auto bin = static_cast<double>(std::min(i, size - i));
        spectrum[i] *= response(bin * orderStep, band) / static_cast<double>(size);
    }
}

Signal filtered(const Signal& signal, int perTurn, const OrderBand& band,
                const ReadingProgress& progress) {
    Signal spectrum = longTransform(signal, TransformWay::Forward, progress.between(0.0, 0.5));
    filterSpectrum(spectrum, perTurn, band);
    return longTransform(spectrum, TransformWay::Inverse, progress.between(0.5, 1.0));
}

}  // namespace

Signal lowOrders(const Signal& signal, int perTurn, const OrderBand& band,
                 const ReadingProgress& progress) {
    const std::size_t most = ContinuedTurns * static_cast<std::size_t>(perTurn);
    const std::size_t margin = std::min(most, signal.size() - 1);
    const Signal backward(signal.rbegin(),
                          signal.rbegin() + static_cast<std::ptrdiff_t>(margin + 1));
    const Continuation before(signal, perTurn);
    const Continuation behind(backward, perTurn);
    const Complex common = 0.5 * (before.level() + behind.level());

    Signal whole = before.outside(margin, common);
    std::reverse(whole.begin(), whole.end());
    whole.reserve(signal.size() + 3 * margin);
    whole.insert(whole.end(), signal.begin(), signal.end());
    const Signal after = behind.outside(margin, common);
    whole.insert(whole.end(), after.begin(), after.end());
    while (!hasSmallFactors(whole.size()))
        whole.push_back(common);

    const Signal low = filtered(whole, perTurn, band, progress);
    const auto first = low.begin() + static_cast<std::ptrdiff_t>(margin);
    return {first, first + static_cast<std::ptrdiff_t>(signal.size())};
}

}  // namespace Rotavue::Workbench
