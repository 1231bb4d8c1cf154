#include "plugin/orbit_graph/scales.h"

#include "plugin/orbit_graph/graph_state.h"
#include "plugin/orbit_graph/number_format.h"

#include <cmath>

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

std::vector<Segment> gridUnits(std::int32_t tickCount) {
    const double step = 2.0 / intervals(tickCount);
    std::vector<Segment> units;
    double t = 1.0;
    do {
        units.push_back({{t, -1}, {t, 1}});
        units.push_back({{-1, t}, {1, t}});
        t -= step;
    } while (t > -1.0 && step > 0);
    return units;
}

std::vector<Segment> edgeUnits() {
    return {{{-1, -1}, {-1, 1}}, {{-1, 1}, {1, 1}}};
}

std::vector<Rectangle> ringUnits(std::int32_t tickCount) {
    const double step = 1.0 / intervals(tickCount);
    std::vector<Rectangle> units;
    double t = 1 - step;
    while (t > 0 && step > 0) {
        units.push_back({0, 0, t, t});
        t -= step;
    }
    return units;
}

std::vector<Segment> crossUnits() {
    return {{{-1, 0}, {1, 0}}, {{0, -1}, {0, 1}}};
}

std::vector<Tick> axisTicks(double lower, double upper, std::int64_t positions,
                            const std::wstring& format) {
    const auto gaps = static_cast<double>(positions - 1);
    const double valueStep = (upper - lower) / gaps;
    const double unitStep = 2.0 / gaps;
    std::vector<Tick> ticks;
    double value = upper;
    double unit = 1.0;
    for (std::int64_t i = 0; i < positions; ++i) {
        const bool atLimit = isNear(value, lower) || isNear(value, upper);
        ticks.push_back({value, unit, atLimit, formatValue(format, value)});
        value -= valueStep;
        unit -= unitStep;
    }
    return ticks;
}

Range fittedLimits(const Range& extents, std::int32_t graphType, std::int32_t autoScaleType) {
    const Range data = hasEmptyPlace(extents) ? Range{0, 0, 0, 0} : extents;
    if (graphType == GraphType::Grid && autoScaleType == AutoScaleType::Relative) {
        return withOwnMargins(data);
    }
    return symmetricRange(reachOf(data) * 1.1);
}

}  // namespace Meridax::VisualControls::Rotavue
