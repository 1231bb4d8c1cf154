#include "workbench/scene/bearing_facts.h"

#include "workbench/scene/graph_scale.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

void completeClearance(MachineFacts& machine) {
    if (machine.clearanceWidth <= 0.0) machine.clearanceWidth = machine.clearanceHeight;
    if (machine.clearanceHeight <= 0.0) machine.clearanceHeight = machine.clearanceWidth;
}

int axisDecimals(const Recording& recording) {
    constexpr std::int32_t UsualTicks = 5;
    double largest = 0.0;
    for (const auto* probe : {&recording.x, &recording.y})
        SampleView(*probe).forEach([&largest](double value) {
            largest = std::max(largest, std::isnan(value) ? 0.0 : std::abs(value));
        });
    return largest > 0.0 ? plainScale(largest, Background::Grid, UsualTicks).decimals : 0;
}

}  // namespace Rotavue::Workbench
