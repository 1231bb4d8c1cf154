#include "workbench/analysis/harmonics.h"

#include <algorithm>
#include <cmath>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/order_fit.h"
#include "workbench/analysis/short_text.h"
#include "workbench/analysis/turned_samples.h"

namespace Rotavue::Workbench {
namespace {

constexpr const char* Purpose = "the harmonic analysis";
constexpr double SamplesPerCycle = 2.0;
// What two orders may be closer than one cycle in the window, for the sake of rounding.
constexpr double Slack = 1e-9;
// How many samples are taken between two looks whether it shall go on: some milliseconds.
constexpr std::size_t BetweenWords = 1U << 16U;
constexpr double PartOfTurns = 0.4;

std::string orderText(double order) {
    return shortText(order, 6) + "X";
}

std::string thereAre(double turns) {
    return turns == 1.0 ? "there is 1 turn" : "there are " + shortText(turns) + " turns";
}

void checkApart(std::span<const double> orders, double turns) {
    std::vector<double> sorted(orders.begin(), orders.end());
    sorted.push_back(0.0);
    std::sort(sorted.begin(), sorted.end());
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        if (sorted[i] - sorted[i - 1] >= (1.0 - Slack) / turns) continue;
        const std::string pair = i == 1
                                     ? orderText(sorted[i]) + " from the mean"
                                     : orderText(sorted[i - 1]) + " from " + orderText(sorted[i]);
        throw AnalysisError("too few turns to tell " + pair + ": " + thereAre(turns));
    }
}

void checkSampling(std::span<const double> orders, double samplesPerTurn) {
    const double highest = *std::max_element(orders.begin(), orders.end());
    if (highest * SamplesPerCycle < samplesPerTurn) return;
    throw AnalysisError(orderText(highest) + " needs more than " +
                        shortText(highest * SamplesPerCycle) + " samples a turn, and there are " +
                        shortText(samplesPerTurn));
}

std::vector<OrderVectors> fit(const Recording& recording, const TurnedSamples& samples,
                              std::span<const double> orders, const WholeTurns& turns,
                              const ReadingProgress& progress) {
    // Angles count from the window's first pulse: that is what lags of broken orders refer to.
    const auto origin = static_cast<double>(turns.first);
    const auto length = static_cast<double>(turns.count());
    OrderFit orderFit(orders, 0.0, length);
    for (std::size_t i = 0; i < samples.count(); ++i) {
        if (i % BetweenWords == 0)
            progress.reach(static_cast<double>(i) / static_cast<double>(samples.count()));
        const double x = recording.x[samples.first + i];
        const double y = recording.y[samples.first + i];
        const double turn = samples.turns[i] - origin;
        const bool inWindow = turn >= 0.0 && turn < length;
        if (inWindow && std::isfinite(x + y)) orderFit.add(turn, samples.share(i), x, y);
    }
    if (2 * orderFit.count() < samples.count()) return {};
    return orderFit.solve();
}

}  // namespace

void checkOrders(std::span<const double> orders) {
    if (orders.empty() || orders.size() > MostOrders)
        throw AnalysisError("1 to " + std::to_string(MostOrders) +
                            " orders can be sought at once, not " + std::to_string(orders.size()));
    for (const double order : orders) {
        if (!(order > 0.0) || !std::isfinite(order))
            throw AnalysisError("an order is a number above 0, not " + shortText(order));
    }
}

Harmonics findHarmonics(const Recording& recording, const ShaftTrack& track,
                        std::span<const double> orders, const TimeSpan& span,
                        const ReadingProgress& progress) {
    checkOrders(orders);
    const WholeTurns turns = track.wholeTurns(span, Purpose);
    Harmonics result;
    result.span = turns.span();
    result.turns = static_cast<double>(turns.count());
    result.speed = turns.speed();
    result.unit = recording.machine.unit;
    checkApart(orders, result.turns);
    const TurnedSamples samples =
        turnedSamples(recording, *turns.run, result.span, progress.between(0.0, PartOfTurns));
    checkSampling(orders, static_cast<double>(samples.count()) / result.turns);
    result.orders = fit(recording, samples, orders, turns, progress.between(PartOfTurns, 1.0));
    if (result.orders.empty())
        throw AnalysisError(std::string(Purpose) + " finds too many gaps between " +
                            shortText(result.span.from) + " and " + shortText(result.span.to) +
                            " s");
    return result;
}

}  // namespace Rotavue::Workbench
