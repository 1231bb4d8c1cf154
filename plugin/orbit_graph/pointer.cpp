#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/orbit_graph.h"

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {

void OrbitGraph::setPointer(const Point& pointer) {
    state_.pointer = pointer;
}

void OrbitGraph::pointerLeft() {
    state_.pointer = {};
    state_.pointerInside = false;
}

void OrbitGraph::hitTestAxisStrips(const Point& point) {
    state_.xStripHovered = holds(state_.xStrip, point);
    state_.yStripHovered = holds(state_.yStrip, point);
}

void OrbitGraph::hitTestLimitLabels(const Point& point) {
    for (AxisLimitLabel& label : state_.limitLabels)
        label.hovered = false;
    const auto hit = std::ranges::find_if(
        state_.limitLabels, [&](const AxisLimitLabel& label) { return holds(label.box, point); });
    if (hit != state_.limitLabels.end()) hit->hovered = true;
}

bool OrbitGraph::anyAxisStripHovered() const {
    return state_.xStripHovered || state_.yStripHovered;
}

bool OrbitGraph::anyLimitLabelHovered() const {
    return std::ranges::any_of(state_.limitLabels, &AxisLimitLabel::hovered);
}

bool OrbitGraph::isInLimits(const Point& value) const {
    return holds(limitsOf(state_), value);
}

}  // namespace Meridax::VisualControls::Rotavue
