#pragma once

#include "plugin/framework/host/panel/host_property_panel.h"
#include "plugin/framework/host/panel/host_widgets.h"
#include "plugin/settings/settings_table.h"

#include <array>
#include <cstdint>
#include <string>

/// The kinds of widget: how each is added to a page with what belongs to its making, and how it
/// shows and gives a setting's value. A null widget that is needed raises 0x80004003.
namespace Meridax::VisualControls::Rotavue {

struct NumberEdit {
    using Interface = Host::IHostNumberEdit;

    std::int32_t minimum;
    std::int32_t maximum;

    void add(Host::IHostPropertyPage& page, const std::wstring& name,
             const std::wstring& caption) const;
    void show(Interface& widget, const SettingValue& value) const;
    SettingValue read(Interface& widget) const;
};

struct FloatEdit {
    using Interface = Host::IHostFloatEdit;

    double minimum;
    double maximum;

    void add(Host::IHostPropertyPage& page, const std::wstring& name,
             const std::wstring& caption) const;
    void show(Interface& widget, const SettingValue& value) const;
    SettingValue read(Interface& widget) const;
};

/// The index of an item is the value of the setting.
struct ComboBox {
    using Interface = Host::IHostComboBox;

    std::array<const wchar_t*, 2> items;

    void add(Host::IHostPropertyPage& page, const std::wstring& name,
             const std::wstring& caption) const;
    void show(Interface& widget, const SettingValue& value) const;
    SettingValue read(Interface& widget) const;
};

struct CheckBox {
    using Interface = Host::IHostCheckBox;

    bool checkedAtFirst = false;
    bool inverted = false;  ///< checked means that the setting is off

    void add(Host::IHostPropertyPage& page, const std::wstring& name,
             const std::wstring& caption) const;
    void show(Interface& widget, const SettingValue& value) const;
    SettingValue read(Interface& widget) const;
};

struct ColorEdit {
    using Interface = Host::IHostColorEdit;

    void add(Host::IHostPropertyPage& page, const std::wstring& name,
             const std::wstring& caption) const;
    void show(Interface& widget, const SettingValue& value) const;
    SettingValue read(Interface& widget) const;
};

}  // namespace Meridax::VisualControls::Rotavue
