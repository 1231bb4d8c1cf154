#pragma once

#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/panel/host_widgets.h"

namespace Rotavue::HostKit {

/// A widget as the user and the panel see it, whatever its kind.
class AnyWidget {
public:
    virtual const std::wstring& widgetName() const = 0;

    /// The user changes the widget; a value of another kind is taken as what it means in the
    /// widget's own, and a number wider than its place is cut to its width.
    virtual void enter(const WidgetValue& value) = 0;

    /// The widget as an object of the host.
    virtual Host::Ref<Host::IHostObject> object() = 0;

protected:
    ~AnyWidget() = default;
};

/// What all kinds have in common: the name and the operations of `IHostPropertyControl`. What the
/// plug-in shows, hides, enables and limits is told to watchers and kept nowhere.
template <class... Interfaces>
class MemoryWidget : public PassingObject<Interfaces..., Host::IHostPropertyControl>,
                     public AnyWidget {
public:
    MemoryWidget(MemoryHost& host, std::wstring widgetName);

    std::string name() const override;
    std::optional<CallValue> logName() const override { return toCallValue(name_); }
    const std::wstring& widgetName() const override { return name_; }
    Host::Ref<Host::IHostObject> object() override;

    std::wstring GetName() override;
    void SetVisible(bool visible) override;
    void SetEnabled(bool enabled) override;
    void SetFlag(std::int32_t value) override;

private:
    std::wstring name_;
};

extern template class MemoryWidget<>;
extern template class MemoryWidget<Host::IHostCheckBox>;
extern template class MemoryWidget<Host::IHostComboBox>;
extern template class MemoryWidget<Host::IHostFloatEdit>;
extern template class MemoryWidget<Host::IHostColorEdit>;
extern template class MemoryWidget<Host::IHostNumberEdit>;

/// A widget that the plug-in did not make.
class MemoryBareWidget final : public MemoryWidget<> {
public:
    using MemoryWidget::MemoryWidget;

    void enter(const WidgetValue&) override {}
};

class MemoryCheckBox final : public MemoryWidget<Host::IHostCheckBox> {
public:
    using MemoryWidget::MemoryWidget;

    void enter(const WidgetValue& value) override;
    bool GetChecked() override;
    void SetChecked(bool checked) override;

private:
    bool checked_ = false;
};

class MemoryComboBox final : public MemoryWidget<Host::IHostComboBox> {
public:
    using MemoryWidget::MemoryWidget;

    void enter(const WidgetValue& value) override;
    std::int32_t GetIndex() override;
    void SetIndex(std::int32_t index) override;
    void AddItem(const std::wstring& text) override;

private:
    std::int32_t index_ = 0;
};

class MemoryFloatEdit final : public MemoryWidget<Host::IHostFloatEdit> {
public:
    using MemoryWidget::MemoryWidget;

    void enter(const WidgetValue& value) override;
    double GetValue() override;
    void SetValue(double value) override;
    void SetMin(double value) override;
    void SetMax(double value) override;

private:
    double value_ = 0.0;
};

class MemoryColorEdit final : public MemoryWidget<Host::IHostColorEdit> {
public:
    using MemoryWidget::MemoryWidget;

    void enter(const WidgetValue& value) override;
    std::int32_t GetColor() override;
    void SetColor(std::int32_t color) override;

private:
    std::int32_t color_ = 0;
};

class MemoryNumberEdit final : public MemoryWidget<Host::IHostNumberEdit> {
public:
    using MemoryWidget::MemoryWidget;

    void enter(const WidgetValue& value) override;
    std::int32_t GetValue() override;
    void SetValue(std::int32_t value) override;
    void SetMin(std::int32_t value) override;
    void SetMax(std::int32_t value) override;

private:
    std::int32_t value_ = 0;
};

}  // namespace Rotavue::HostKit
