#pragma once

#include "host_kit/memory/memory_host.h"
#include "plugin/setup_document/meridax_dcom_node.h"
#include "plugin/setup_document/xml_exception.h"
#include "tests/plugin/settings/settings_state.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

/// A setup on its way through the host's document and back, and what is left of it there.
namespace Meridax::VisualControls::Rotavue {

/// Saves or loads through the document of the host; the code of the exception that ended it.
inline std::optional<int> persist(RotavueVisualControl& control,
                                  ::Rotavue::HostKit::MemoryHost& host, bool writing) {
    Utils::Dcom::Utils::MeridaxDCOMNode node(host.document(), host.node());
    node.setWriting(writing);
    try {
        control.persistSetup(node);
    } catch (const Utils::Serialization::XmlException& error) {
        return error.code;
    }
    return std::nullopt;
}

/// What is left of a number after it was saved with 15 digits behind the point.
inline double afterSaving(double value) {
    if (!std::isfinite(value)) return value;
    std::array<char, 400> text{};
    const auto end = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, 15);
    double result = 0;
    std::from_chars(text.data(), end.ptr, result);
    return result;
}

inline std::array<double*, 5> numbersOf(SettingsState& state) {
    return {&state.displayTime, &state.minXValue, &state.maxXValue, &state.minYValue,
            &state.maxYValue};
}

inline SettingsState afterSaving(SettingsState state) {
    for (double* number : numbersOf(state))
        *number = afterSaving(*number);
    return state;
}

/// The state with a number in the place of NaN, which then counts as equal to itself.
inline SettingsState comparable(SettingsState state) {
    for (double* number : numbersOf(state))
        if (std::isnan(*number)) *number = 123456789.0;
    return state;
}

}  // namespace Meridax::VisualControls::Rotavue
