#include "plugin/framework/host/host_text.h"
#include "plugin/orbit_control/rotavue_visual_control.h"
#include "plugin/orbit_control/setting_values.h"
#include "plugin/settings/panel_table.h"

#include <string>
#include <variant>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Host::hostText;
using Host::IHostPropertyControl;
using Host::IHostPropertyPage;
using Host::Ref;

// The widget of that name on the page, which may lack it. One that is no property control counts as
// a missing object. The page stays held while it answers, also where the host has the panel built
// anew meanwhile.
Ref<IHostPropertyControl> findControl(const Ref<IHostPropertyPage>& page,
                                      const std::wstring& name) {
    const Ref<Host::IHostObject> found =
        Ref<IHostPropertyPage>::share(page.get())->FindControl(name);
    Ref<IHostPropertyControl> control = found.offered<IHostPropertyControl>();
    if (found && !control) Host::raiseNullObject();
    return control;
}

void buildPage(const PanelPage& page, IHostPropertyPage& hostPage) {
    hostPage.AddGroup(hostText(page.group));
    for (const PanelWidget& widget : page.widgets) {
        const auto add = [&](const auto& form) {
            form.add(hostPage, hostText(widget.name), hostText(widget.caption));
        };
        std::visit(add, widget.form);
    }
}

void show(const Ref<IHostPropertyControl>& control, const PanelWidget& widget,
          const RotavueVisualControl& owner) {
    const SettingValue value = SettingsTable[widget.setting].get(owner);
    const auto showForm = [&]<class Form>(const Form& form) {
        form.show(*control.offered<typename Form::Interface>(), value);
    };
    std::visit(showForm, widget.form);
}

void read(const Ref<IHostPropertyControl>& control, const PanelWidget& widget,
          RotavueVisualControl& owner) {
    const auto readForm = [&]<class Form>(const Form& form) {
        return form.read(*control.offered<typename Form::Interface>());
    };
    SettingsTable[widget.setting].set(owner, std::visit(readForm, widget.form));
}

}  // namespace

void RotavueVisualControl::buildProperties(Ref<Host::IHostPropertyPanel> panel) {
    for (const PanelPage& page : PanelPages) {
        const Ref<IHostPropertyPage> hostPage = panel->AddPage(hostText(page.name));
        propertyRoot_ = hostPage;
        buildPage(page, *hostPage);
    }
}

void RotavueVisualControl::fillProperties(Ref<Host::IHostPropertyPanel> panel) {
    propertyRoot_ = panel->GetPage(hostText(AxisPage));
    fill(widgetNamed(L"TickCount"));
    fill(widgetNamed(L"SingleAxis"));
    fill(widgetNamed(L"AutoScaleCheckbox"));
    fillAutoScaleType();
    propertyRoot_ = panel->GetPage(hostText(AdvancedPage));
    fillWhereShown(widgetNamed(L"HistoryTime"), graph_.historyType() == HistoryType::Time);
    fillWhereShown(widgetNamed(L"HistoryRevolutions"),
                   graph_.historyType() == HistoryType::Revolutions);
    fill(widgetNamed(L"DisplayType"));
    fill(widgetNamed(L"GraphType"));
    if (const auto historyType = fill(widgetNamed(L"HistoryType")))
        historyType->SetEnabled(!tachoMissing_);
    fillClearance();
    fill(widgetNamed(L"ClearanceColor"));
    fill(widgetNamed(L"ShowOnlyLastPositionCheckBox"));
}

Ref<IHostPropertyControl> RotavueVisualControl::fill(const PanelWidget& widget) {
    Ref<IHostPropertyControl> control = findControl(propertyRoot_, hostText(widget.name));
    if (control) show(control, widget, *this);
    return control;
}

void RotavueVisualControl::fillWhereShown(const PanelWidget& widget, bool shown) {
    const Ref<IHostPropertyControl> control = findControl(propertyRoot_, hostText(widget.name));
    if (!control) return;
    control->SetVisible(shown);
    show(control, widget, *this);
}

// A circle is always scaled absolutely. This is the one setting that filling changes; it stays so
// after a return to the grid.
void RotavueVisualControl::fillAutoScaleType() {
    const PanelWidget& widget = widgetNamed(L"AutoScaleType");
    const Ref<IHostPropertyControl> control = fill(widget);
    if (!control) return;
    const bool isGrid = graph_.graphType() == GraphType::Grid;
    control->SetEnabled(graph_.manualLimits() == 0 && isGrid);
    if (isGrid) return;
    control.offered<Host::IHostComboBox>()->SetIndex(AutoScaleType::Absolute);
    graph_.setAutoScaleType(AutoScaleType::Absolute);
}

// The colour follows what the widget now says, not the setting.
void RotavueVisualControl::fillClearance() {
    const Ref<IHostPropertyControl> control = fill(widgetNamed(L"Clearance"));
    if (!control) return;
    const bool checked = control.offered<Host::IHostCheckBox>()->GetChecked();
    setControlEnabled(hostText(L"ClearanceColor"), checked);
}

void RotavueVisualControl::setControlEnabled(const std::wstring& name, bool enabled) {
    if (const auto control = findControl(propertyRoot_, name)) control->SetEnabled(enabled);
}

// No range is checked here: the limits of a widget are its own affair.
void RotavueVisualControl::readProperty(std::wstring /*text*/, Ref<IHostPropertyControl> widget) {
    const PanelWidget* known = findWidget(widget->GetName());
    if (known != nullptr) read(widget, *known, *this);
}

}  // namespace Meridax::VisualControls::Rotavue
