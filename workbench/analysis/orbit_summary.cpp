#include "workbench/analysis/orbit_summary.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/mean_position.h"
#include "workbench/analysis/short_text.h"

namespace Rotavue::Workbench {
namespace {

// A speed that changes by more than this over a span gives no vector that one may rely on.
constexpr double SteadyPart = 0.05;

// Smallest and largest value and their distance.
class Extent {
public:
    void add(double value) {
        least_ = std::min(least_, value);
        most_ = std::max(most_, value);
    }
    double size() const { return most_ - least_; }

private:
    double least_ = std::numeric_limits<double>::infinity();
    double most_ = -std::numeric_limits<double>::infinity();
};

template <typename Take>
void forPairs(const Recording& recording, const SampleRange& range, const Take& take) {
    for (std::size_t i = range.first; i < range.end; ++i) {
        const ProbeValues pair{recording.x[i], recording.y[i]};
        if (std::isfinite(pair.x + pair.y)) take(pair);
    }
}

ProbeValues meanOf(const Recording& recording, const SampleRange& range) {
    ProbeValues sum;
    std::size_t count = 0;
    forPairs(recording, range, [&](const ProbeValues& pair) {
        sum.x += pair.x;
        sum.y += pair.y;
        ++count;
    });
    if (count == 0)
        throw AnalysisError("there is no sample of both probes in that stretch of time");
    return {sum.x / static_cast<double>(count), sum.y / static_cast<double>(count)};
}

DirectValues directValues(const Recording& recording, const TimeSpan& span) {
    const SampleRange range = samplesIn(recording, span);
    const ProbeValues mean = meanOf(recording, range);
    const MachineFrame frame(recording.machine);
    DirectValues direct;
    Extent x;
    Extent y;
    forPairs(recording, range, [&](const ProbeValues& pair) {
        x.add(pair.x);
        y.add(pair.y);
        const MachinePoint away = frame.point({pair.x - mean.x, pair.y - mean.y});
        direct.smax = std::max(direct.smax, std::hypot(away.x, away.y));
    });
    direct.peakPeak = {x.size(), y.size()};
    if (recording.coupling == Coupling::Dc) direct.gap = mean;
    return direct;
}

void addSpeed(const ShaftTrack& track, const WholeTurns& turns, OrbitSummary& summary) {
    const TimeSpan span = turns.span();
    summary.speed = turns.speed();
    summary.speedFirst = track.speedAt(span.from);
    summary.speedLast = track.speedAt(span.to);
    const double change = std::abs(*summary.speedLast - *summary.speedFirst);
    if (change <= SteadyPart * *summary.speed) return;
    summary.notes.push_back("the speed runs from " + shortText(*summary.speedFirst) + " to " +
                            shortText(*summary.speedLast) +
                            " rpm: the orders are means over that range");
}

void addOrders(const Recording& recording, const ShaftTrack& track, std::span<const double> orders,
               OrbitSummary& summary) {
    const Harmonics harmonics = findHarmonics(recording, track, orders, summary.span);
    for (const OrderVectors& order : harmonics.orders)
        summary.orders.push_back({order, ellipseOf(order, recording.machine)});
    if (recording.hasMark() || summary.orders.empty()) return;
    summary.notes.emplace_back(
        "the lags count from no mark on the shaft: compare them within this recording alone");
}

void addPosition(const MachineFacts& machine, const ProbeValues& toCentre, OrbitSummary& summary) {
    const ProbeValues& gap = *summary.direct.gap;
    summary.position = shaftPosition(machine, {gap.x + toCentre.x, gap.y + toCentre.y});
    if (!summary.position) {
        summary.notes.emplace_back(
            "the shaft's place in its bearing needs the clearance, and probes that look along two "
            "directions");
    } else if (!machine.rotation) {
        summary.notes.emplace_back("the attitude angle needs the rotation");
    }
}

}  // namespace

OrbitSummary summarize(const Recording& recording, const ShaftTrack& track,
                       std::span<const double> orders, const TimeSpan& span,
                       const std::optional<ProbeValues>& toCentre) {
    checkOrders(orders);
    OrbitSummary summary;
    summary.span = {std::max(0.0, span.from), std::min(recording.duration(), span.to)};
    summary.unit = recording.machine.unit;
    summary.direct = directValues(recording, summary.span);
    if (toCentre && summary.direct.gap) addPosition(recording.machine, *toCentre, summary);
    try {
        addSpeed(track, track.wholeTurns(summary.span, "the harmonic analysis"), summary);
        addOrders(recording, track, orders, summary);
    } catch (const AnalysisError& error) {
        summary.notes.emplace_back(error.what());
    }
    return summary;
}

}  // namespace Rotavue::Workbench
