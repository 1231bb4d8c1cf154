#include "workbench/analysis/direct_orbit.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace Rotavue::Workbench {
namespace {

constexpr const char* Purpose = "the direct orbit by angle";
constexpr int UsualPoints = 256;  // a turn
constexpr int FinestPoints = 1024;
constexpr int CoarsestPoints = 64;
constexpr std::int64_t MostPoints = 65'536;  // of all turns together

// No fewer than a turn has samples, so that no peak falls between them.
int pointsPerTurn(const WholeTurns& turns, int revolutions, double sampleRate) {
    const double samples = turns.span().length() * sampleRate / static_cast<double>(turns.count());
    const double wanted = std::clamp(std::ceil(samples), double{UsualPoints}, double{FinestPoints});
    auto points = static_cast<int>(std::bit_ceil(static_cast<unsigned>(wanted)));
    while (points > CoarsestPoints && std::int64_t{points} * revolutions > MostPoints)
        points /= 2;
    return points;
}

}  // namespace

AveragedOrbit directOrbit(const Recording& recording, const ShaftTrack& track, const TimeSpan& span,
                          const ReadingProgress& progress) {
    const WholeTurns turns = track.wholeTurns(span, Purpose);
    const int revolutions =
        static_cast<int>(std::min<std::int64_t>(turns.count(), MostRevolutions));
    const AverageOptions options{
        .span = span,
        .revolutions = revolutions,
        .averages = 1,
        .pointsPerTurn = pointsPerTurn(turns, revolutions, recording.sampleRate),
        .purpose = Purpose};
    return averageOrbit(recording, track, options, progress);
}

AveragedOrbit withoutOrder(AveragedOrbit orbit, const OrderVectors& order) {
    for (std::size_t k = 0; k < orbit.x.size(); ++k) {
        const double turns = static_cast<double>(k) / orbit.pointsPerTurn;
        orbit.x[k] -= order.x.valueAt(order.order, turns);
        orbit.y[k] -= order.y.valueAt(order.order, turns);
    }
    return orbit;
}

}  // namespace Rotavue::Workbench
