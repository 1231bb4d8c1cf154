#pragma once

#include "plugin/framework/host/panel/host_widgets.h"
#include "workbench/window/docks/panel_row.h"
#include "workbench/window/docks/shared_object.h"

#include <QPointer>

#include <cstdint>
#include <string>
#include <utility>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QSpinBox;

namespace Rotavue::Workbench {

class ColorButton;

/// A widget of the property panel as the plug-in sees it, over the Qt widget that the user sees.
/// The value is the host's: what the plug-in sets is given back as it stands, also where the Qt
/// widget cannot show it, until the user enters another one. Setting a value tells nobody.
template <class Interface>
class PanelWidget : public SharedObject<Interface, Host::IHostPropertyControl> {
public:
    PanelWidget(std::wstring name, PanelRow row, WidgetChanged changed)
        : name_(std::move(name)), row_(std::move(row)), changed_(std::move(changed)) {}

    std::wstring GetName() override { return name_; }
    void SetVisible(bool visible) override { row_.setVisible(visible); }
    void SetEnabled(bool enabled) override { row_.setEnabled(enabled); }
    void SetFlag(std::int32_t) override {}

protected:
    ~PanelWidget() override { QObject::disconnect(connection_); }

    /// What the Qt widget's signal of a change by the user is connected with.
    void keep(QMetaObject::Connection connection) { connection_ = std::move(connection); }

    void tellChange() { changed_(Host::Ref<Host::IHostPropertyControl>::share(this)); }

private:
    std::wstring name_;
    PanelRow row_;
    WidgetChanged changed_;
    QMetaObject::Connection connection_;
};

class PanelCheckBox final : public PanelWidget<Host::IHostCheckBox> {
public:
    PanelCheckBox(std::wstring name, PanelRow row, WidgetChanged changed, QCheckBox& box);

    bool GetChecked() override { return checked_; }
    void SetChecked(bool checked) override;

private:
    QPointer<QCheckBox> box_;
    bool checked_ = false;
};

class PanelComboBox final : public PanelWidget<Host::IHostComboBox> {
public:
    PanelComboBox(std::wstring name, PanelRow row, WidgetChanged changed, QComboBox& box);

    std::int32_t GetIndex() override { return index_; }
    void SetIndex(std::int32_t index) override;
    void AddItem(const std::wstring& text) override;

private:
    QPointer<QComboBox> box_;
    std::int32_t index_ = 0;
};

class PanelColorEdit final : public PanelWidget<Host::IHostColorEdit> {
public:
    PanelColorEdit(std::wstring name, PanelRow row, WidgetChanged changed, ColorButton& button);

    std::int32_t GetColor() override { return color_; }
    void SetColor(std::int32_t color) override;

private:
    QPointer<ColorButton> button_;
    std::int32_t color_ = 0;
};

/// A number outside the limits, as a setup may hold one, is shown as it stands: the box then
/// reaches as far as that number. Once the user has left it, the limits hold again.
template <class Interface, class Box, class Value>
class PanelNumber final : public PanelWidget<Interface> {
public:
    PanelNumber(std::wstring name, PanelRow row, WidgetChanged changed, Box& box);

    Value GetValue() override { return value_; }
    void SetValue(Value value) override;
    void SetMin(Value value) override;
    void SetMax(Value value) override;

private:
    void show();

    QPointer<Box> box_;
    Value value_ = 0;
    Value least_;
    Value most_;
};

using PanelNumberEdit = PanelNumber<Host::IHostNumberEdit, QSpinBox, std::int32_t>;
using PanelFloatEdit = PanelNumber<Host::IHostFloatEdit, QDoubleSpinBox, double>;

extern template class PanelNumber<Host::IHostNumberEdit, QSpinBox, std::int32_t>;
extern template class PanelNumber<Host::IHostFloatEdit, QDoubleSpinBox, double>;

}  // namespace Rotavue::Workbench
