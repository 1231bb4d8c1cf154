#include "cli/setup_texts.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cwchar>
#include <string>

namespace Rotavue::Cli {

namespace {

constexpr std::uint32_t ClearanceColor = 0xFF9900;

std::wstring text(bool value) {
    return value ? L"True" : L"False";
}

std::wstring text(int value) {
    return std::to_wstring(value);
}

/// Fixed-point notation, the form in which a control writes its numbers.
std::wstring text(double value) {
    char digits[512];
    const int length = std::snprintf(digits, sizeof digits, "%.15f", value);
    return {digits, digits + length};
}

/// The amount of a limit, which is 1 where the key is left out.
double limit(const HostKit::DrivenControl::Settings& saved, const wchar_t* key) {
    constexpr double WhenLeftOut = 1.0;
    const auto found = saved.find(key);
    return found == saved.end() ? WhenLeftOut
                                : std::abs(std::wcstod(found->second.c_str(), nullptr));
}

}  // namespace

HostKit::DrivenControl::Settings settingsFor(const RenderOptions& options, const OrbitScene& scene,
                                             const PlotLayout& layout) {
    const Workbench::ShownSpan& span = scene.span();
    const Workbench::PositionLabels usual =
        scene.hasSpeed() ? Workbench::PositionLabels::Speed : Workbench::PositionLabels::Time;
    const Workbench::PositionLabels labels = options.shaftCenter.labels.value_or(usual);
    HostKit::DrivenControl::Settings settings{
        {L"useManualMagnitudeLimits", text(layout.limit.has_value())},
        {L"drawClearance", text(options.clearance)},
        {L"clearanceColor", text(static_cast<int>(ClearanceColor))},
        {L"displayTime", text(span.milliseconds)},
        {L"revolutions", text(span.turns)},
        {L"tickCount", text(layout.ticks)},
        {L"singleAxis", text(layout.legendInRow)},
        {L"displayType", text(labels == Workbench::PositionLabels::Time ? 1 : 0)},
        {L"graphType", text(options.background == Workbench::Background::Circle ? 1 : 0)},
        {L"historyType", text(span.byTurns ? 0 : 1)},
    };
    if (layout.limit) {
        settings[L"minXValue"] = settings[L"minYValue"] = text(-*layout.limit);
        settings[L"maxXValue"] = settings[L"maxYValue"] = text(*layout.limit);
    }
    for (const auto& [key, text] : options.setup)
        settings[key] = text;
    return settings;
}

double limitIn(const HostKit::DrivenControl::Settings& saved) {
    return std::max(limit(saved, L"minXValue"), limit(saved, L"maxXValue"));
}

bool limitsAreAlike(const HostKit::DrivenControl::Settings& saved) {
    const double one = limit(saved, L"minXValue");
    return one == limit(saved, L"maxXValue") && one == limit(saved, L"minYValue") &&
           one == limit(saved, L"maxYValue");
}

}  // namespace Rotavue::Cli
