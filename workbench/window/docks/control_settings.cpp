#include "workbench/window/docks/control_settings.h"

#include "workbench/analysis/short_text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace Rotavue::Workbench {

namespace {

struct AxisLimits {
    double least;
    double most;

    double span() const { return most - least; }
};

const std::wstring& textOf(const ControlSettings& settings, const wchar_t* key,
                           const std::wstring& missing) {
    const auto found = settings.find(key);
    return found != settings.end() ? found->second : missing;
}

double numberOf(const ControlSettings& settings, const wchar_t* key, double missing) {
    const auto found = settings.find(key);
    return found != settings.end() ? std::wcstod(found->second.c_str(), nullptr) : missing;
}

bool isManual(const ControlSettings& settings) {
    return textOf(settings, L"useManualMagnitudeLimits", L"False") == L"True";
}

bool isRelative(const ControlSettings& settings) {
    return textOf(settings, L"autoScaleType", L"0") == L"1" &&
           textOf(settings, L"graphType", L"0") == L"0";
}

AxisLimits limitsX(const ControlSettings& settings) {
    return {numberOf(settings, L"minXValue", -1.0), numberOf(settings, L"maxXValue", 1.0)};
}

AxisLimits limitsY(const ControlSettings& settings) {
    return {numberOf(settings, L"minYValue", -1.0), numberOf(settings, L"maxYValue", 1.0)};
}

bool areAlike(double a, double b) {
    return std::abs(a - b) <= 1e-9 * std::max(std::abs(a), std::abs(b));
}

/// As a control writes it.
std::wstring settingText(double value) {
    char text[400];
    const int length = std::snprintf(text, sizeof text, "%.15f", value);
    return {text, text + length};
}

AxisLimits widened(const AxisLimits& limits, double span) {
    const double middle = (limits.least + limits.most) / 2.0;
    return {middle - span / 2.0, middle + span / 2.0};
}

}  // namespace

std::optional<std::string> scaleWarning(const ControlSettings& settings) {
    if (!isManual(settings)) {
        if (!isRelative(settings)) return {};
        return "x and y are scaled each by its own values: the orbit is out of shape";
    }
    const double x = limitsX(settings).span();
    const double y = limitsY(settings).span();
    if (areAlike(x, y)) return {};
    return "x spans " + shortText(x) + " and y " + shortText(y) + ": the orbit is out of shape";
}

ControlSettings withEqualSpans(ControlSettings settings) {
    if (!isManual(settings)) {
        settings.erase(L"autoScaleType");
        return settings;
    }
    const double span = std::max(limitsX(settings).span(), limitsY(settings).span());
    const AxisLimits x = widened(limitsX(settings), span);
    const AxisLimits y = widened(limitsY(settings), span);
    settings[L"minXValue"] = settingText(x.least);
    settings[L"maxXValue"] = settingText(x.most);
    settings[L"minYValue"] = settingText(y.least);
    settings[L"maxYValue"] = settingText(y.most);
    return settings;
}

}  // namespace Rotavue::Workbench
