#pragma once

#include "host_kit/loader/module.h"
#include "host_kit/memory/memory_host.h"
#include "plugin/framework/message_codes.h"
#include "workbench/window/docks/property_panel.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace Rotavue::Workbench {

/// What a control keeps, by key.
using ControlSettings = std::map<std::wstring, std::wstring>;

/// A control of the built module with a host in memory.
class LoadedControl {
public:
    LoadedControl() : module_(ROTAVUE_MODULE_FILE), control_(module_.makeControl()) {
        send(Code::Attach, {host.app(), host.control()});
    }

    using Code = Meridax::VisualControls::Api::MessageCode;

    void send(Code code, const HostKit::MessageList& list) {
        ASSERT_EQ(control_->message(static_cast<std::uint32_t>(code), &list, nullptr), 0);
    }

    ControlSettings save() {
        host.description.setup.clear();
        send(Code::Setup, {host.document(), host.node(), 0xFFFF});
        return host.description.setup;
    }

    void load(const ControlSettings& settings) {
        host.description.setup = settings;
        send(Code::Setup, {host.document(), host.node(), 0});
    }

    PanelMessages messages() {
        return {.build = [this](const auto& panel) { send(Code::BuildProperties, {panel}); },
                .fill = [this](const auto& panel) { send(Code::FillProperties, {panel}); },
                .read =
                    [this](const auto& widget) {
                        send(Code::ReadProperty, {L"", widget});
                    }};
    }

    HostKit::MemoryHost host;

private:
    HostKit::Module module_;
    Host::Ref<Meridax::VisualControls::Api::IMeridaxPlugin> control_;
};

}  // namespace Rotavue::Workbench
