#include "plugin/orbit_graph/orbit_graph.h"

#include "plugin/orbit_graph/number_format.h"
#include "plugin/orbit_graph/scales.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {

OrbitGraph::OrbitGraph() {
    fillGridUnits(state_.gridUnits, state_.tickCount);
    state_.edgeUnits = edgeUnits();
    fillRingUnits(state_.ringUnits, state_.tickCount);
    state_.crossUnits = crossUnits();
}

void OrbitGraph::setZoom(double factor) {
    state_.scaleX = factor;
    state_.scaleY = factor;
    state_.layoutValid = false;
}

void OrbitGraph::panBy(double dx, double dy) {
    state_.panX += dx;
    state_.panY += dy;
    state_.layoutValid = false;
}

void OrbitGraph::setRotation(double angle) {
    state_.rotationCos = std::cos(angle);
    state_.rotationSin = std::sin(angle);
    state_.layoutValid = false;
}

void OrbitGraph::setRotationDirection(std::int32_t direction) {
    state_.rotationDirection = direction;
    state_.panX = 0;
    state_.panY = 0;
    state_.layoutValid = false;
}

void OrbitGraph::setTickCount(std::int32_t count) {
    state_.tickCount = count;
    state_.layoutValid = false;
}

void OrbitGraph::setThemeColors(Color background, Color grid, Color text, Color axis,
                                Color border) {
    state_.backgroundColor = background;
    state_.gridColor = grid;
    state_.textColor = text;
    state_.axisColor = axis;
    state_.borderColor = border;
    state_.darkBackground = background == Black;
}

void OrbitGraph::setHistoryType(std::int32_t type) {
    if (state_.historyType != type) state_.historyType = type;
}

std::wstring OrbitGraph::valueFormat() const {
    return Rotavue::valueFormat(state_.decimals);
}

}  // namespace Meridax::VisualControls::Rotavue
