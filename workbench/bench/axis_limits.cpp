#include "workbench/bench/axis_limits.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cwchar>
#include <string>

namespace Rotavue::Workbench {

namespace {

constexpr const wchar_t* XMinKey = L"minXValue";
constexpr const wchar_t* XMaxKey = L"maxXValue";
constexpr const wchar_t* YMinKey = L"minYValue";
constexpr const wchar_t* YMaxKey = L"maxYValue";
constexpr const wchar_t* ManualKey = L"useManualMagnitudeLimits";
constexpr const wchar_t* AutoScaleKey = L"autoScaleType";

/// A limit that a control leaves out of its setup has the value that a missing key reads as.
double limitIn(const Settings& settings, const wchar_t* key, double missing) {
    const auto found = settings.find(key);
    return found == settings.end() ? missing : std::wcstod(found->second.c_str(), nullptr);
}

/// Fixed-point notation, the form in which a control writes its numbers.
std::wstring textOf(double value) {
    char digits[512];
    const int length = std::snprintf(digits, sizeof digits, "%.15f", value);
    return {digits, digits + length};
}

}  // namespace

double AxisLimits::ratio() const {
    return xSpan() > 0.0 && ySpan() > 0.0 ? xSpan() / ySpan() : 1.0;
}

bool AxisLimits::areEqual() const {
    constexpr double Visible = 1e-3;
    return std::abs(ratio() - 1.0) < Visible;
}

AxisLimits axisLimits(Plane& plane) {
    plane.readBack();
    return limitsIn(plane.settings());
}

AxisLimits limitsIn(const Settings& settings) {
    const auto manual = settings.find(ManualKey);
    return {.xMin = limitIn(settings, XMinKey, -1.0),
            .xMax = limitIn(settings, XMaxKey, 1.0),
            .yMin = limitIn(settings, YMinKey, -1.0),
            .yMax = limitIn(settings, YMaxKey, 1.0),
            .manual = manual != settings.end() && manual->second == L"True"};
}

Settings withEqualAxes(Plane& plane) {
    AxisLimits limits = axisLimits(plane);
    if (!limits.manual) {
        Settings square = plane.settings();
        square[AutoScaleKey] = L"0";
        return square;
    }
    const double half = 0.5 * std::max(limits.xSpan(), limits.ySpan());
    const double xMiddle = 0.5 * (limits.xMin + limits.xMax);
    const double yMiddle = 0.5 * (limits.yMin + limits.yMax);
    limits = {xMiddle - half, xMiddle + half, yMiddle - half, yMiddle + half, true};
    return withLimits(plane, limits);
}

Settings withLimits(const Plane& plane, const AxisLimits& limits) {
    return withLimits(plane.settings(), limits);
}

Settings withLimits(Settings settings, const AxisLimits& limits) {
    settings[ManualKey] = limits.manual ? L"True" : L"False";
    settings[XMinKey] = textOf(limits.xMin);
    settings[XMaxKey] = textOf(limits.xMax);
    settings[YMinKey] = textOf(limits.yMin);
    settings[YMaxKey] = textOf(limits.yMax);
    return settings;
}

}  // namespace Rotavue::Workbench
