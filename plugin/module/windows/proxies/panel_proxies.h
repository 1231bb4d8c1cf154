#pragma once

#include "plugin/module/windows/interfaces/panel_operations.h"
#include "plugin/module/windows/proxies/proxy_object.h"

namespace Meridax::Host::Binary {

template <>
class Proxy<IHostPropertyPage> final : public ProxyObject<IHostPropertyPage> {
public:
    using ProxyObject::ProxyObject;

    void AddGroup(const std::wstring& caption) override {
        return call<&IHostPropertyPage::AddGroup>(caption);
    }
    Ref<IHostNumberEdit> AddNumberEdit(const std::wstring& name,
                                       const std::wstring& caption) override {
        return call<&IHostPropertyPage::AddNumberEdit>(name, caption);
    }
    Ref<IHostObject> FindControl(const std::wstring& name) override {
        return call<&IHostPropertyPage::FindControl>(name);
    }
    Ref<IHostColorEdit> AddColorEdit(const std::wstring& name,
                                     const std::wstring& caption) override {
        return call<&IHostPropertyPage::AddColorEdit>(name, caption);
    }
    Ref<IHostFloatEdit> AddFloatEdit(const std::wstring& name,
                                     const std::wstring& caption) override {
        return call<&IHostPropertyPage::AddFloatEdit>(name, caption);
    }
    Ref<IHostComboBox> AddComboBox(const std::wstring& name, const std::wstring& caption) override {
        return call<&IHostPropertyPage::AddComboBox>(name, caption);
    }
    Ref<IHostCheckBox> AddCheckBox(const std::wstring& name, const std::wstring& caption) override {
        return call<&IHostPropertyPage::AddCheckBox>(name, caption);
    }
};

template <>
class Proxy<IHostPropertyPanel> final : public ProxyObject<IHostPropertyPanel> {
public:
    using ProxyObject::ProxyObject;

    Ref<IHostPropertyPage> GetPage(const std::wstring& name) override {
        return call<&IHostPropertyPanel::GetPage>(name);
    }
    Ref<IHostPropertyPage> AddPage(const std::wstring& name) override {
        return call<&IHostPropertyPanel::AddPage>(name);
    }
};

template <>
class Proxy<IHostPropertyControl> final : public ProxyObject<IHostPropertyControl> {
public:
    using ProxyObject::ProxyObject;

    std::wstring GetName() override { return call<&IHostPropertyControl::GetName>(); }
    void SetVisible(bool visible) override {
        return call<&IHostPropertyControl::SetVisible>(visible);
    }
    void SetEnabled(bool enabled) override {
        return call<&IHostPropertyControl::SetEnabled>(enabled);
    }
    void SetFlag(std::int32_t value) override {
        return call<&IHostPropertyControl::SetFlag>(value);
    }
};

template <>
class Proxy<IHostCheckBox> final : public ProxyObject<IHostCheckBox> {
public:
    using ProxyObject::ProxyObject;

    bool GetChecked() override { return call<&IHostCheckBox::GetChecked>(); }
    void SetChecked(bool checked) override { return call<&IHostCheckBox::SetChecked>(checked); }
};

template <>
class Proxy<IHostComboBox> final : public ProxyObject<IHostComboBox> {
public:
    using ProxyObject::ProxyObject;

    std::int32_t GetIndex() override { return call<&IHostComboBox::GetIndex>(); }
    void SetIndex(std::int32_t index) override { return call<&IHostComboBox::SetIndex>(index); }
    void AddItem(const std::wstring& text) override { return call<&IHostComboBox::AddItem>(text); }
};

template <>
class Proxy<IHostFloatEdit> final : public ProxyObject<IHostFloatEdit> {
public:
    using ProxyObject::ProxyObject;

    double GetValue() override { return call<&IHostFloatEdit::GetValue>(); }
    void SetValue(double value) override { return call<&IHostFloatEdit::SetValue>(value); }
    void SetMin(double value) override { return call<&IHostFloatEdit::SetMin>(value); }
    void SetMax(double value) override { return call<&IHostFloatEdit::SetMax>(value); }
};

template <>
class Proxy<IHostColorEdit> final : public ProxyObject<IHostColorEdit> {
public:
    using ProxyObject::ProxyObject;

    std::int32_t GetColor() override { return call<&IHostColorEdit::GetColor>(); }
    void SetColor(std::int32_t color) override { return call<&IHostColorEdit::SetColor>(color); }
};

template <>
class Proxy<IHostNumberEdit> final : public ProxyObject<IHostNumberEdit> {
public:
    using ProxyObject::ProxyObject;

    std::int32_t GetValue() override { return call<&IHostNumberEdit::GetValue>(); }
    void SetValue(std::int32_t value) override { return call<&IHostNumberEdit::SetValue>(value); }
    void SetMin(std::int32_t value) override { return call<&IHostNumberEdit::SetMin>(value); }
    void SetMax(std::int32_t value) override { return call<&IHostNumberEdit::SetMax>(value); }
};

}  // namespace Meridax::Host::Binary
