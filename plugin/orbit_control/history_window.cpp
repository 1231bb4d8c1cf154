#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/orbit_control/channel_layout.h"
#include "plugin/orbit_control/rotavue_visual_control.h"
#include "plugin/orbit_control/setting_values.h"
#include "plugin/orbit_graph/canvas_integer.h"

#include <algorithm>
#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

// The tacho's angle falls back once per turn.
bool isTurn(double current, double previous) {
    return std::abs(current - previous) > 180.0;
}

bool isSilent(double current, double previous) {
    return current == 0.0 && previous == 0.0;
}

}  // namespace

std::int32_t RotavueVisualControl::sampleCountForTime(bool shortSpan) {
    const double seconds = shortSpan ? 0.1 : displayTime_ / 1000;
    return canvasInteger(hostApp->getData()->getSampleRate() * seconds);
}

HistoryWindow RotavueVisualControl::findHistoryWindow(Host::IHostChannel* tacho) {
    if (graph_.historyType() == HistoryType::Time) return findTimeWindow(tacho);
    if (tacho == nullptr || tacho->getSampleRate() == 0.0) return {};
    return findRevolutionWindow(*tacho);
}

// The tacho's count bounds the window although other samples are read; without a tacho nothing
// does.
HistoryWindow RotavueVisualControl::findTimeWindow(Host::IHostChannel* tacho) {
    std::int64_t count = sampleCountForTime(false);
    if (tacho != nullptr) count = std::min(count, std::int64_t{tacho->getSampleCount()} - 1);
    return {0, static_cast<std::int32_t>(std::max<std::int64_t>(count, 0))};
}

HistoryWindow RotavueVisualControl::findRevolutionWindow(Host::IHostChannel& tacho) {
    const std::int64_t last = std::int64_t{tacho.getSampleCount()} - 1;
    const std::optional<std::int32_t> first = findNewestTurn(tacho, last);
    if (!first) return {};
    return {*first, findEndOfTurns(tacho, *first, last) + 1};
}

// 0 when no turn is marked before the last sample, nothing when the tacho has no signal.
std::optional<std::int32_t> RotavueVisualControl::findNewestTurn(Host::IHostChannel& tacho,
                                                                 std::int64_t last) {
    double previous = getSample(tacho, 0, 0, Component::Plain);
    for (std::int32_t i = 1; i < last && turnAllowance_.take(); ++i) {
        const double current = getSample(tacho, i, 0, Component::Plain);
        if (isTurn(current, previous)) return i;
        if (isSilent(current, previous)) return std::nullopt;
        previous = current;
    }
    return 0;
}

std::int32_t RotavueVisualControl::findEndOfTurns(Host::IHostChannel& tacho, std::int32_t first,
                                                  std::int64_t last) {
    double previous = getSample(tacho, first, 0, Component::Plain);
    std::int64_t turns = revolutions_;
    std::int32_t i = first;
    for (; i < last && turnAllowance_.take(); ++i) {
        const double current = getSample(tacho, i, 0, Component::Plain);
        if (isTurn(current, previous)) --turns;
        if (turns == 0 || isSilent(current, previous)) break;
        previous = current;
    }
    return i;
}

}  // namespace Meridax::VisualControls::Rotavue
