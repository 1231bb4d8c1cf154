#include "workbench/window/docks/panel_widgets.h"

#include "workbench/paint/host_color.h"
#include "workbench/window/docks/color_button.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace Rotavue::Workbench {

namespace {

/// The greatest number, either way, that a box still shows in its width.
template <class Value>
constexpr Value Widest = std::is_floating_point_v<Value> ? Value(1e9)
                                                         : std::numeric_limits<Value>::max();

template <class Value>
Value shown(Value value) {
    if constexpr (std::is_floating_point_v<Value>) {
        if (!std::isfinite(value)) return 0;
        return std::clamp(value, -Widest<Value>, Widest<Value>);
    } else {
        return value;
    }
}

}  // namespace

PanelCheckBox::PanelCheckBox(std::wstring name, PanelRow row, WidgetChanged changed, QCheckBox& box)
    : PanelWidget(std::move(name), std::move(row), std::move(changed)), box_(&box) {
    keep(QObject::connect(&box, &QCheckBox::toggled, [this](bool checked) {
        checked_ = checked;
        tellChange();
    }));
}

void PanelCheckBox::SetChecked(bool checked) {
    checked_ = checked;
    if (!box_) return;
    const QSignalBlocker quiet(box_);
    box_->setChecked(checked);
}

PanelComboBox::PanelComboBox(std::wstring name, PanelRow row, WidgetChanged changed, QComboBox& box)
    : PanelWidget(std::move(name), std::move(row), std::move(changed)), box_(&box) {
    keep(QObject::connect(&box, &QComboBox::currentIndexChanged, [this](int index) {
        index_ = index;
        tellChange();
    }));
}

void PanelComboBox::SetIndex(std::int32_t index) {
    index_ = index;
    if (!box_) return;
    const QSignalBlocker quiet(box_);
    box_->setCurrentIndex(index);
}

void PanelComboBox::AddItem(const std::wstring& text) {
    if (!box_) return;
    const QSignalBlocker quiet(box_);
    box_->addItem(QString::fromStdWString(text));
}

PanelColorEdit::PanelColorEdit(std::wstring name, PanelRow row, WidgetChanged changed,
                               ColorButton& button)
    : PanelWidget(std::move(name), std::move(row), std::move(changed)), button_(&button) {
    keep(QObject::connect(&button, &ColorButton::colorChosen, [this](const QColor& color) {
        color_ = static_cast<std::int32_t>(toHostColor(color));
        tellChange();
    }));
}

void PanelColorEdit::SetColor(std::int32_t color) {
    color_ = color;
    if (button_) button_->setColor(fromHostColor(static_cast<std::uint32_t>(color)));
}

template <class Interface, class Box, class Value>
PanelNumber<Interface, Box, Value>::PanelNumber(std::wstring name, PanelRow row,
                                                WidgetChanged changed, Box& box)
    : PanelWidget<Interface>(std::move(name), std::move(row), std::move(changed)),
      box_(&box),
      least_(-Widest<Value>),
      most_(Widest<Value>) {
    show();
    this->keep(QObject::connect(&box, &Box::valueChanged, [this](Value value) {
        value_ = std::clamp(value, least_, std::max(least_, most_));
        this->tellChange();
    }));
}

template <class Interface, class Box, class Value>
void PanelNumber<Interface, Box, Value>::SetValue(Value value) {
    value_ = value;
    show();
}

template <class Interface, class Box, class Value>
void PanelNumber<Interface, Box, Value>::SetMin(Value value) {
    least_ = shown(value);
    show();
}

template <class Interface, class Box, class Value>
void PanelNumber<Interface, Box, Value>::SetMax(Value value) {
    most_ = shown(value);
    show();
}

template <class Interface, class Box, class Value>
void PanelNumber<Interface, Box, Value>::show() {
    if (!box_) return;
    const QSignalBlocker quiet(box_);
    const Value value = shown(value_);
    box_->setRange(std::min(least_, value), std::max(most_, value));
    box_->setValue(value);
    box_->setToolTip(QObject::tr("%1 to %2 (Up, Down)").arg(least_).arg(most_));
}

template class PanelNumber<Host::IHostNumberEdit, QSpinBox, std::int32_t>;
template class PanelNumber<Host::IHostFloatEdit, QDoubleSpinBox, double>;

}  // namespace Rotavue::Workbench
