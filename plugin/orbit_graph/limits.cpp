#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/orbit_graph.h"
#include "plugin/orbit_graph/scales.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

void assignLimits(GraphState& state, const Range& limits) {
    state.xMin = limits.xMin;
    state.xMax = limits.xMax;
    state.yMin = limits.yMin;
    state.yMax = limits.yMax;
}

void assignX(GraphState& state, const Range& range) {
    state.xMin = range.xMin;
    state.xMax = range.xMax;
}

void assignY(GraphState& state, const Range& range) {
    state.yMin = range.yMin;
    state.yMax = range.yMax;
}

}  // namespace

void OrbitGraph::autoScale(const Range& extents) {
    if (state_.manualLimits != 0) return;
    assignLimits(state_, fittedLimits(extents, state_.graphType, state_.autoScaleType));
}

void OrbitGraph::setGraphType(std::int32_t type) {
    if (state_.graphType == type) return;
    state_.graphType = type;
    if (type == GraphType::Circle) {
        assignLimits(state_, symmetricRange(reachOf(limitsOf(state_))));
    }
}

void OrbitGraph::setLimits(const Range& range) {
    if (state_.graphType == GraphType::Circle) {
        assignLimits(state_, symmetricRange(reachOf(range)));
    } else if (state_.xStripHovered) {
        assignX(state_, range);
    } else if (state_.yStripHovered) {
        assignY(state_, range);
    }
}

void OrbitGraph::setLimit(double value, std::int32_t index) {
    const bool independent =
        state_.graphType != GraphType::Circle && state_.autoScaleType != AutoScaleType::Absolute;
    if (independent) {
        setLimitPlain(value, index);
    } else {
        assignLimits(state_, symmetricRange(std::fabs(value)));
    }
}

void OrbitGraph::setLimitPlain(double value, std::int32_t index) {
    if (index == 0 && state_.xMax > value) state_.xMin = value;
    if (index == 1 && value > state_.xMin) state_.xMax = value;
    if (index == 2 && state_.yMax > value) state_.yMin = value;
    if (index == 3 && value > state_.yMin) state_.yMax = value;
}

}  // namespace Meridax::VisualControls::Rotavue
