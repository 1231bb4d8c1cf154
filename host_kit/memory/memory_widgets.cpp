#include "host_kit/memory/memory_widgets.h"

#include "host_kit/memory/utf8.h"

#include <cmath>
#include <utility>

namespace Rotavue::HostKit {

namespace {

double asDouble(const WidgetValue& value) {
    return std::visit([](auto number) { return static_cast<double>(number); }, value);
}

bool asBool(const WidgetValue& value) {
    return asDouble(value) != 0.0;
}

std::int32_t cutToInteger(double number) {
    constexpr double Limit = 9.0e18;
    if (!(std::abs(number) < Limit)) return 0;
    return static_cast<std::int32_t>(static_cast<std::int64_t>(number));
}

std::int32_t asInteger(const WidgetValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return static_cast<std::int32_t>(*number);
    }
    return cutToInteger(asDouble(value));
}

}  // namespace

template <class... Interfaces>
MemoryWidget<Interfaces...>::MemoryWidget(MemoryHost& host, std::wstring widgetName)
    : PassingObject<Interfaces..., Host::IHostPropertyControl>(host),
      name_(std::move(widgetName)) {}

template <class... Interfaces>
std::string MemoryWidget<Interfaces...>::name() const {
    return "widget:" + toUtf8(name_);
}

template <class... Interfaces>
Host::Ref<Host::IHostObject> MemoryWidget<Interfaces...>::object() {
    auto* shared = static_cast<Host::IHostPropertyControl*>(this);
    return Host::Ref<Host::IHostObject>::share(shared);
}

template <class... Interfaces>
std::wstring MemoryWidget<Interfaces...>::GetName() {
    return this->call(operation("IHostPropertyControl.GetName"), [&] { return name_; });
}

template <class... Interfaces>
void MemoryWidget<Interfaces...>::SetVisible(bool visible) {
    this->call(
        operation("IHostPropertyControl.SetVisible"), [] {}, visible);
}

template <class... Interfaces>
void MemoryWidget<Interfaces...>::SetEnabled(bool enabled) {
    this->call(
        operation("IHostPropertyControl.SetEnabled"), [] {}, enabled);
}

template <class... Interfaces>
void MemoryWidget<Interfaces...>::SetFlag(std::int32_t value) {
    this->call(
        operation("IHostPropertyControl.SetFlag"), [] {}, value);
}

template class MemoryWidget<>;
template class MemoryWidget<Host::IHostCheckBox>;
template class MemoryWidget<Host::IHostComboBox>;
template class MemoryWidget<Host::IHostFloatEdit>;
template class MemoryWidget<Host::IHostColorEdit>;
template class MemoryWidget<Host::IHostNumberEdit>;

void MemoryCheckBox::enter(const WidgetValue& value) {
    checked_ = asBool(value);
}

bool MemoryCheckBox::GetChecked() {
    return call(operation("IHostCheckBox.GetChecked"), [&] { return checked_; });
}

void MemoryCheckBox::SetChecked(bool checked) {
    call(
        operation("IHostCheckBox.SetChecked"), [&] { checked_ = checked; }, checked);
}

void MemoryComboBox::enter(const WidgetValue& value) {
    index_ = asInteger(value);
}

std::int32_t MemoryComboBox::GetIndex() {
    return call(operation("IHostComboBox.GetIndex"), [&] { return index_; });
}

void MemoryComboBox::SetIndex(std::int32_t index) {
    call(
        operation("IHostComboBox.SetIndex"), [&] { index_ = index; }, index);
}

void MemoryComboBox::AddItem(const std::wstring& text) {
    call(
        operation("IHostComboBox.AddItem"), [] {}, text);
}

void MemoryFloatEdit::enter(const WidgetValue& value) {
    value_ = asDouble(value);
}

double MemoryFloatEdit::GetValue() {
    return call(operation("IHostFloatEdit.GetValue"), [&] { return value_; });
}

void MemoryFloatEdit::SetValue(double value) {
    call(
        operation("IHostFloatEdit.SetValue"), [&] { value_ = value; }, value);
}

void MemoryFloatEdit::SetMin(double value) {
    call(
        operation("IHostFloatEdit.SetMin"), [] {}, value);
}

void MemoryFloatEdit::SetMax(double value) {
    call(
        operation("IHostFloatEdit.SetMax"), [] {}, value);
}

void MemoryColorEdit::enter(const WidgetValue& value) {
    color_ = asInteger(value);
}

std::int32_t MemoryColorEdit::GetColor() {
    return call(operation("IHostColorEdit.GetColor"), [&] { return color_; });
}

void MemoryColorEdit::SetColor(std::int32_t color) {
    call(
        operation("IHostColorEdit.SetColor"), [&] { color_ = color; }, color);
}

void MemoryNumberEdit::enter(const WidgetValue& value) {
    value_ = asInteger(value);
}

std::int32_t MemoryNumberEdit::GetValue() {
    return call(operation("IHostNumberEdit.GetValue"), [&] { return value_; });
}

void MemoryNumberEdit::SetValue(std::int32_t value) {
    call(
        operation("IHostNumberEdit.SetValue"), [&] { value_ = value; }, value);
}

void MemoryNumberEdit::SetMin(std::int32_t value) {
    call(
        operation("IHostNumberEdit.SetMin"), [] {}, value);
}

void MemoryNumberEdit::SetMax(std::int32_t value) {
    call(
        operation("IHostNumberEdit.SetMax"), [] {}, value);
}

}  // namespace Rotavue::HostKit
