#include "plugin/orbit_graph/scales.h"

#include "plugin/orbit_graph/graph_state.h"
#include "plugin/orbit_graph/number_format.h"

#include <cmath>
#include <utility>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// How many parts a scale is divided into. Zero or less for a negative count: no step goes down.
double intervals(std::int32_t tickCount) {
    return static_cast<double>(drawnTickCount(tickCount)) + 1.0;
}

bool isNear(double value, double limit) {
    constexpr double SinglePrecisionEpsilon = 1.1920928955078125e-07;
    return std::fabs(value - limit) < SinglePrecisionEpsilon;
}

bool hasEmptyPlace(const Range& extents) {
    const Range empty;
    return extents.xMin == empty.xMin || extents.xMax == empty.xMax || extents.yMin == empty.yMin ||
           extents.yMax == empty.yMax;
}

Range withOwnMargins(const Range& extents) {
    const double dx = std::fabs(extents.xMax - extents.xMin) * 0.1 * 0.5;
    const double dy = std::fabs(extents.yMax - extents.yMin) * 0.1 * 0.5;
    return {extents.xMin - dx, extents.xMax + dx, extents.yMin - dy, extents.yMax + dy};
}

}  // namespace

std::int64_t tickPositions(std::int32_t graphType, std::int32_t tickCount) {
    const std::int64_t ticks = drawnTickCount(tickCount);
    return graphType == GraphType::Grid ? ticks + 2 : 2 * ticks + 3;
}

void fillGridUnits(std::vector<Segment>& units, std::int32_t tickCount) {
    const double step = 2.0 / intervals(tickCount);
    units.clear();
    double t = 1.0;
    do {
        units.push_back({{t, -1}, {t, 1}});
        units.push_back({{-1, t}, {1, t}});
        t -= step;
    } while (t > -1.0 && step > 0);
}

std::vector<Segment> edgeUnits() {
    return {{{-1, -1}, {-1, 1}}, {{-1, 1}, {1, 1}}};
}

void fillRingUnits(std::vector<Rectangle>& units, std::int32_t tickCount) {
    const double step = 1.0 / intervals(tickCount);
    units.clear();
    for (double t = 1 - step; t > 0 && step > 0; t -= step)
        units.push_back({0, 0, t, t});
}

std::vector<Segment> crossUnits() {
    return {{{-1, 0}, {1, 0}}, {{0, -1}, {0, 1}}};
}

AxisTicks::AxisTicks(double lower, double upper, std::int64_t positions, std::wstring format)
    : lower_(lower),
      upper_(upper),
      valueStep_((upper - lower) / static_cast<double>(positions - 1)),
      unitStep_(2.0 / static_cast<double>(positions - 1)),
      format_(std::move(format)),
      value_(upper) {}

Tick AxisTicks::next() {
    const bool atLimit = isNear(value_, lower_) || isNear(value_, upper_);
    Tick tick{value_, unit_, atLimit, formatValue(format_, value_)};
    value_ -= valueStep_;
    unit_ -= unitStep_;
    return tick;
}

Range fittedLimits(const Range& extents, std::int32_t graphType, std::int32_t autoScaleType) {
    const Range data = hasEmptyPlace(extents) ? Range{0, 0, 0, 0} : extents;
    if (graphType == GraphType::Grid && autoScaleType == AutoScaleType::Relative) {
        return withOwnMargins(data);
    }
    return symmetricRange(reachOf(data) * 1.1);
}

}  // namespace Meridax::VisualControls::Rotavue
