#pragma once

#include "tests/plugin/orbit_control/control_access.h"

#include <cstdint>
#include <ostream>

namespace Meridax::VisualControls::Rotavue {

/// The sixteen settings as plain fields, in the order of the setup, beginning as those of a new
/// control.
struct SettingsState {
    std::int32_t useManualMagnitudeLimits = 0;
    bool drawClearance = false;
    std::int32_t clearanceColor = 0xFF9900;
    double displayTime = 100.0;
    std::int32_t revolutions = 1;
    std::int32_t tickCount = 5;
    bool singleAxis = true;
    std::int32_t displayType = 0;
    std::int32_t graphType = 0;
    std::int32_t historyType = 0;
    std::int32_t autoScaleType = 0;
    bool showOnlyLastPosition = false;
    double minXValue = -1.0;
    double maxXValue = 1.0;
    double minYValue = -1.0;
    double maxYValue = 1.0;

    bool operator==(const SettingsState&) const = default;
};

/// What the control holds, read from its fields.
inline SettingsState stateOf(const RotavueVisualControlAccess& key) {
    const OrbitGraph& graph = key.graph;
    return {graph.manualLimits(),
            graph.drawClearance(),
            static_cast<std::int32_t>(graph.clearanceColor()),
            key.displayTime,
            key.revolutions,
            graph.tickCount(),
            graph.singleAxis(),
            graph.displayType(),
            graph.graphType(),
            graph.historyType(),
            graph.autoScaleType(),
            key.showOnlyLastPosition,
            graph.xMin(),
            graph.xMax(),
            graph.yMin(),
            graph.yMax()};
}

inline SettingsState stateOf(RotavueVisualControl& control) {
    return stateOf(RotavueVisualControlAccess(control));
}

/// A state in which no setting has the value of a new control or that of a missing key, and in
/// which the limits are those of a circle.
inline SettingsState unusualState() {
    return {1, true, -7, 250.5, 3, 9, false, 1, 1, 1, 1, true, -4.0, 4.0, -4.0, 4.0};
}

inline void putState(RotavueVisualControl& control, const SettingsState& state) {
    RotavueVisualControlAccess key(control);
    key.graph.setManualLimits(state.useManualMagnitudeLimits);
    key.graph.setDrawClearance(state.drawClearance);
    key.graph.setClearanceColor(static_cast<Color>(state.clearanceColor));
    key.displayTime = state.displayTime;
    key.revolutions = state.revolutions;
    key.graph.setTickCount(state.tickCount);
    key.graph.setSingleAxis(state.singleAxis);
    key.graph.setDisplayType(state.displayType);
    key.graph.setGraphType(state.graphType);
    key.graph.setHistoryType(state.historyType);
    key.graph.setAutoScaleType(state.autoScaleType);
    key.showOnlyLastPosition = state.showOnlyLastPosition;
    key.graph.setXMin(state.minXValue);
    key.graph.setXMax(state.maxXValue);
    key.graph.setYMin(state.minYValue);
    key.graph.setYMax(state.maxYValue);
}

inline std::ostream& operator<<(std::ostream& out, const SettingsState& s) {
    return out << "manual " << s.useManualMagnitudeLimits << ", clearance " << s.drawClearance
               << ", color " << s.clearanceColor << ", time " << s.displayTime << ", revolutions "
               << s.revolutions << ", ticks " << s.tickCount << ", single " << s.singleAxis
               << ", display " << s.displayType << ", graph " << s.graphType << ", history "
               << s.historyType << ", scale " << s.autoScaleType << ", last "
               << s.showOnlyLastPosition << ", limits " << s.minXValue << " " << s.maxXValue << " "
               << s.minYValue << " " << s.maxYValue;
}

}  // namespace Meridax::VisualControls::Rotavue
