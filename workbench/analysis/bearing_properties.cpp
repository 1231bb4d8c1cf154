#include "workbench/analysis/bearing_properties.h"

#include <charconv>

namespace Rotavue::Workbench {
namespace {

std::wstring decimalText(double value) {
    char buffer[400];  // the longest number without an exponent has 309 digits
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
    return {buffer, end.ptr};
}

}  // namespace

std::map<std::wstring, std::wstring> bearingProperties(const MachineFacts& machine) {
    std::map<std::wstring, std::wstring> properties{
        {L"Orbit X Angle", decimalText(machine.xAngle)},
        {L"Orbit Y Angle", decimalText(machine.yAngle)},
        {L"Orbit Tacho Angle", decimalText(machine.tachoAngle)},
    };
    if (machine.clearanceWidth > 0.0)
        properties[L"Orbit Clearance Width"] = decimalText(machine.clearanceWidth);
    if (machine.clearanceHeight > 0.0)
        properties[L"Orbit Clearance Height"] = decimalText(machine.clearanceHeight);
    if (machine.rotation)
        properties[L"Orbit Rotation Direction"] =
            *machine.rotation == Rotation::CounterClockwise ? L"CCW" : L"CW";
    return properties;
}

}  // namespace Rotavue::Workbench
