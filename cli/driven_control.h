#pragma once

#include "host_kit/loader/module.h"
#include "host_kit/memory/memory_host.h"
#include "plugin/framework/message_codes.h"

#include <cstdint>
#include <map>
#include <string>

namespace Rotavue::Cli {

/// A control made by the loaded module and driven by messages, as any host does it.
class DrivenControl {
public:
    using Settings = std::map<std::wstring, std::wstring>;

    /// Makes the control and attaches it to the host, which must outlive it. Raises
    /// `std::runtime_error` where the plug-in refuses.
    DrivenControl(HostKit::Module& module, HostKit::MemoryHost& host);

    /// Tells the control that the assignment has changed.
    void assignmentChanged();

    /// Loads these settings; a key that is left out has the default of a setup document.
    void load(const Settings& settings);

    /// What the control holds now, by key; a key that is left out has the default.
    const Settings& save();

    /// Draws the whole control into an area that begins at 0, 0.
    void draw(Meridax::Host::Ref<Meridax::Host::IHostCanvas> canvas, std::int32_t width,
              std::int32_t height, std::int32_t scheme);

    /// Puts the pointer on a place of the area, as a user does who comes from outside.
    void movePointer(std::int32_t x, std::int32_t y);

    /// Lets the control put its text on the clipboard of its module.
    void copy();

private:
    void send(Meridax::VisualControls::Api::MessageCode code, const HostKit::MessageList& list);

    HostKit::MemoryHost& host_;
    Meridax::Host::Ref<Meridax::VisualControls::Api::IMeridaxPlugin> control_;
};

}  // namespace Rotavue::Cli
