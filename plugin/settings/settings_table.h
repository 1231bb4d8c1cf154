#pragma once

#include "plugin/orbit_control/rotavue_visual_control.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

namespace Meridax::VisualControls::Rotavue {

/// A setting's value. Which of the three it holds is the setting's kind.
using SettingValue = std::variant<bool, std::int32_t, double>;

/// Which values a setup need not hold.
enum class Storing {
    Always,           ///< none: every saved setup has the key
    UnlessAsMissing,  ///< the one that a missing key reads as
};

/// What a value from a setup must be. The property panel is not checked.
enum class Check {
    None,
    ZeroOrOne,  ///< any other value, a negative one too, becomes 0
};

/// One of the settings.
struct Setting {
    std::string_view key;  ///< in the setup, upper and lower case told apart
    SettingValue missing;  ///< what a missing key reads as; not always the constructor's value
    Storing storing;
    Check check;
    SettingValue (*get)(const RotavueVisualControl& control);
    void (*set)(RotavueVisualControl& control, SettingValue value);
};

/// The way from a row of the table to the control's state.
struct SettingsAccess {
    template <auto Field>
    static SettingValue field(const RotavueVisualControl& control) {
        return control.*Field;
    }

    template <auto Field, class Kind>
    static void setField(RotavueVisualControl& control, SettingValue value) {
        control.*Field = std::get<Kind>(value);
    }

    template <auto Get>
    static SettingValue ofGraph(const RotavueVisualControl& control) {
        return (control.graph_.*Get)();
    }

    template <auto Set, class Kind>
    static void setOfGraph(RotavueVisualControl& control, SettingValue value) {
        (control.graph_.*Set)(std::get<Kind>(value));
    }

    // The host's colour has no sign in the graph and one in setup and panel.
    static SettingValue clearanceColor(const RotavueVisualControl& control) {
        return static_cast<std::int32_t>(control.graph_.clearanceColor());
    }

    static void setClearanceColor(RotavueVisualControl& control, SettingValue value) {
        control.graph_.setClearanceColor(static_cast<Color>(std::get<std::int32_t>(value)));
    }

    static SettingValue manualLimits(const RotavueVisualControl& control) {
        return control.graph_.manualLimits() == 1;
    }

    static void setManualLimits(RotavueVisualControl& control, SettingValue value) {
        control.graph_.setManualLimits(std::get<bool>(value) ? 1 : 0);
    }

    static constexpr std::size_t Count = 16;
    static constexpr std::array<Setting, Count> table();
};

// clang-format off
constexpr std::array<Setting, SettingsAccess::Count> SettingsAccess::table() {
    using enum Storing;
    using Control = RotavueVisualControl;
    using Graph = OrbitGraph;
    using Integer = std::int32_t;
    return {{
        {"useManualMagnitudeLimits", false, Always, Check::None,
         manualLimits, setManualLimits},
        {"drawClearance", false, Always, Check::None,
         ofGraph<&Graph::drawClearance>, setOfGraph<&Graph::setDrawClearance, bool>},
        {"clearanceColor", 0, Always, Check::None,
         clearanceColor, setClearanceColor},
        {"displayTime", 0.0, Always, Check::None,
         field<&Control::displayTime_>, setField<&Control::displayTime_, double>},
        {"revolutions", 1, UnlessAsMissing, Check::None,
         field<&Control::revolutions_>, setField<&Control::revolutions_, Integer>},
        {"tickCount", 5, UnlessAsMissing, Check::None,
         ofGraph<&Graph::tickCount>, setOfGraph<&Graph::setTickCount, Integer>},
        {"singleAxis", true, UnlessAsMissing, Check::None,
         ofGraph<&Graph::singleAxis>, setOfGraph<&Graph::setSingleAxis, bool>},
        {"displayType", 0, UnlessAsMissing, Check::None,
         ofGraph<&Graph::displayType>, setOfGraph<&Graph::setDisplayType, Integer>},
        {"graphType", 0, UnlessAsMissing, Check::ZeroOrOne,
         ofGraph<&Graph::graphType>, setOfGraph<&Graph::setGraphType, Integer>},
        {"historyType", 0, UnlessAsMissing, Check::ZeroOrOne,
         ofGraph<&Graph::historyType>, setOfGraph<&Graph::setHistoryType, Integer>},
        {"autoScaleType", 0, UnlessAsMissing, Check::ZeroOrOne,
         ofGraph<&Graph::autoScaleType>, setOfGraph<&Graph::setAutoScaleType, Integer>},
        {"showOnlyLastPosition", false, UnlessAsMissing, Check::None,
         field<&Control::showOnlyLastPosition_>, setField<&Control::showOnlyLastPosition_, bool>},
        {"minXValue", -1.0, UnlessAsMissing, Check::None,
         ofGraph<&Graph::xMin>, setOfGraph<&Graph::setXMin, double>},
        {"maxXValue", 1.0, UnlessAsMissing, Check::None,
         ofGraph<&Graph::xMax>, setOfGraph<&Graph::setXMax, double>},
        {"minYValue", -1.0, UnlessAsMissing, Check::None,
         ofGraph<&Graph::yMin>, setOfGraph<&Graph::setYMin, double>},
        {"maxYValue", 1.0, UnlessAsMissing, Check::None,
         ofGraph<&Graph::yMax>, setOfGraph<&Graph::setYMax, double>},
    }};
}
// clang-format on

/// The sixteen settings in the order in which they stand in a setup.
inline constexpr std::array<Setting, SettingsAccess::Count> SettingsTable = SettingsAccess::table();

/// The place of a setting in the table. A key that isn't there does not compile.
consteval std::size_t settingIndex(std::string_view key) {
    for (std::size_t i = 0; i < SettingsTable.size(); ++i)
        if (SettingsTable[i].key == key) return i;
    throw "no setting has this key";
}

}  // namespace Meridax::VisualControls::Rotavue
