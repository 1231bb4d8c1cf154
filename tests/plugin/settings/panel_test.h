#pragma once

#include "host_kit/memory/memory_host.h"
#include "tests/plugin/settings/settings_state.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// A control and the panel of a host in memory.
class PanelTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    /// What a host does when it shows the panel: messages 34 and 35.
    void buildAndFill() {
        control.buildProperties(host.panel());
        control.fillProperties(host.panel());
        host.takeCalls();
    }

    Lines callsOfBuilding() {
        host.record();
        control.buildProperties(host.panel());
        return host.takeCalls();
    }

    Lines callsOfFilling() {
        host.record();
        control.fillProperties(host.panel());
        return host.takeCalls();
    }

    /// The calls on one widget while the panel is filled.
    Lines callsOn(const std::string& widget) {
        Lines found;
        for (const std::string& line : callsOfFilling())
            if (line.find("[" + widget + "]") != std::string::npos) found.push_back(line);
        return found;
    }

    /// What a host does when the user changes a widget: message 36.
    void change(const std::wstring& name, const ::Rotavue::HostKit::WidgetValue& value) {
        ASSERT_TRUE(host.setWidget(name, value));
        control.readProperty(L"", widget(name));
    }

    Host::Ref<Host::IHostPropertyControl> widget(const std::wstring& name) {
        return host.widget(name).offered<Host::IHostPropertyControl>();
    }

    SettingsState state() { return stateOf(control); }

    ::Rotavue::HostKit::MemoryHost host;
    RotavueVisualControl control;
    RotavueVisualControlAccess key{control};
};

/// The status of the `HostError` that the call raises; 0 when it raises none.
template <class Call>
std::uint32_t statusOf(Call call) {
    try {
        call();
    } catch (const Host::HostError& error) {
        return error.status;
    }
    return 0;
}

}  // namespace Meridax::VisualControls::Rotavue
