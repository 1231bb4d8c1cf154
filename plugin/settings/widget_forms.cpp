#include "plugin/settings/widget_forms.h"

#include "plugin/framework/host/host_text.h"

namespace Meridax::VisualControls::Rotavue {

using Host::IHostPropertyPage;
using Host::Ref;

void NumberEdit::add(IHostPropertyPage& page, const std::wstring& name,
                     const std::wstring& caption) const {
    const Ref<Interface> widget = page.AddNumberEdit(name, caption);
    widget->SetMin(minimum);
    widget->SetMax(maximum);
}

void NumberEdit::show(Interface& widget, const SettingValue& value) const {
    widget.SetValue(std::get<std::int32_t>(value));
}

SettingValue NumberEdit::read(Interface& widget) const {
    return widget.GetValue();
}

void FloatEdit::add(IHostPropertyPage& page, const std::wstring& name,
                    const std::wstring& caption) const {
    const Ref<Interface> widget = page.AddFloatEdit(name, caption);
    widget->SetMin(minimum);
    widget->SetMax(maximum);
}

void FloatEdit::show(Interface& widget, const SettingValue& value) const {
    widget.SetValue(std::get<double>(value));
}

SettingValue FloatEdit::read(Interface& widget) const {
    return widget.GetValue();
}

void ComboBox::add(IHostPropertyPage& page, const std::wstring& name,
                   const std::wstring& caption) const {
    const Ref<Interface> widget = page.AddComboBox(name, caption);
    for (const wchar_t* item : items)
        widget->AddItem(Host::hostText(item));
}

void ComboBox::show(Interface& widget, const SettingValue& value) const {
    widget.SetIndex(std::get<std::int32_t>(value));
}

SettingValue ComboBox::read(Interface& widget) const {
    return widget.GetIndex();
}

void CheckBox::add(IHostPropertyPage& page, const std::wstring& name,
                   const std::wstring& caption) const {
    const Ref<Interface> widget = page.AddCheckBox(name, caption);
    if (checkedAtFirst) widget->SetChecked(true);
}

void CheckBox::show(Interface& widget, const SettingValue& value) const {
    widget.SetChecked(std::get<bool>(value) != inverted);
}

SettingValue CheckBox::read(Interface& widget) const {
    return widget.GetChecked() != inverted;
}

void ColorEdit::add(IHostPropertyPage& page, const std::wstring& name,
                    const std::wstring& caption) const {
    page.AddColorEdit(name, caption).offered<Host::IHostPropertyControl>()->SetFlag(1);
}

void ColorEdit::show(Interface& widget, const SettingValue& value) const {
    widget.SetColor(std::get<std::int32_t>(value));
}

SettingValue ColorEdit::read(Interface& widget) const {
    return widget.GetColor();
}

}  // namespace Meridax::VisualControls::Rotavue
