#pragma once

#include "plugin/settings/settings_table.h"
#include "plugin/settings/widget_forms.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <variant>

namespace Meridax::VisualControls::Rotavue {

using WidgetForm = std::variant<NumberEdit, FloatEdit, ComboBox, CheckBox, ColorEdit>;

/// One widget of the property panel.
struct PanelWidget {
    const wchar_t* name;     ///< how it is found again, upper and lower case told apart
    const wchar_t* caption;  ///< what the user sees
    WidgetForm form;
    std::size_t setting;  ///< its place in `SettingsTable`
};

/// One page of the property panel with its one group of widgets.
struct PanelPage {
    const wchar_t* name;
    const wchar_t* group;
    std::span<const PanelWidget> widgets;
};

// clang-format off
inline constexpr std::array<PanelWidget, 4> AxisWidgets{{
    {L"TickCount", L"Number of ticks", NumberEdit{0, 20}, settingIndex("tickCount")},
    {L"AutoScaleCheckbox", L"Auto scale", CheckBox{.inverted = true},
     settingIndex("useManualMagnitudeLimits")},
    {L"AutoScaleType", L"Auto scale type", ComboBox{{L"Absolute", L"Relative"}},
     settingIndex("autoScaleType")},
    {L"SingleAxis", L"Single axis", CheckBox{.checkedAtFirst = true}, settingIndex("singleAxis")},
}};

inline constexpr std::array<PanelWidget, 8> AdvancedWidgets{{
    {L"GraphType", L"Graph type", ComboBox{{L"Grid", L"Circle"}}, settingIndex("graphType")},
    {L"DisplayType", L"Display type", ComboBox{{L"RPM", L"Time"}}, settingIndex("displayType")},
    {L"Clearance", L"Clearance", CheckBox{}, settingIndex("drawClearance")},
    {L"ClearanceColor", L"Color", ColorEdit{}, settingIndex("clearanceColor")},
    {L"HistoryType", L"History type", ComboBox{{L"Revolutions", L"Time"}},
     settingIndex("historyType")},
    {L"HistoryTime", L"Display time (ms)", FloatEdit{1.0, 10000.0}, settingIndex("displayTime")},
    {L"HistoryRevolutions", L"Revolutions", NumberEdit{1, 25}, settingIndex("revolutions")},
    {L"ShowOnlyLastPositionCheckBox", L"Show only last position", CheckBox{},
     settingIndex("showOnlyLastPosition")},
}};
// clang-format on

inline constexpr const wchar_t* AxisPage = L"Axis";
inline constexpr const wchar_t* AdvancedPage = L"Advanced";

/// The panel in the order in which it is built.
inline constexpr std::array<PanelPage, 2> PanelPages{{
    {AxisPage, L"Axis", AxisWidgets},
    {AdvancedPage, L"Drawing Options", AdvancedWidgets},
}};

/// The widget of that name; null where the panel has none.
constexpr const PanelWidget* findWidget(std::wstring_view name) {
    for (const PanelPage& page : PanelPages)
        for (const PanelWidget& widget : page.widgets)
            if (widget.name == name) return &widget;
    return nullptr;
}

/// The same for a name in the source. One that the panel hasn't does not compile.
consteval const PanelWidget& widgetNamed(std::wstring_view name) {
    for (const PanelPage& page : PanelPages)
        for (const PanelWidget& widget : page.widgets)
            if (widget.name == name) return widget;
    throw "the panel has no widget of this name";
}

}  // namespace Meridax::VisualControls::Rotavue
