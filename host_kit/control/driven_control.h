#pragma once

#include "host_kit/loader/module.h"
#include "host_kit/memory/memory_host.h"
#include "plugin/framework/message_codes.h"

#include <cstdint>
#include <map>
#include <string>

namespace Rotavue::HostKit {

/// A control made by the loaded module and driven by messages, as any host does it. Every operation
/// sends one message and raises `std::runtime_error` where the control fails at it, with the
/// message's number and the reason; the control is in order afterwards.
///
/// Messages may be sent from within a message, as a host does that draws while an in-place editor
/// is open.
class DrivenControl {
public:
    using Settings = std::map<std::wstring, std::wstring>;

    /// Makes the control and attaches it to the host, which must outlive it. Raises
    /// `std::runtime_error` where the plug-in refuses.
    DrivenControl(Module& module, MemoryHost& host);

    /// Tells the control that the assignment has changed.
    void assignmentChanged();

    /// Whether the control takes such a channel, or such an assigned group, for itself.
    bool accepts(const std::string& channel);
    bool acceptsGroup(std::int32_t group);

    /// Lets the control ask for the data that it is going to read.
    void requestData();

    /// Loads these settings; a key that is left out has the default of a setup document.
    void load(const Settings& settings);

    /// What the control holds now, by key; a key that is left out has the default.
    const Settings& save();

    /// Draws the whole control into an area that begins at 0, 0.
    void draw(const Host::Ref<Host::IHostCanvas>& canvas, std::int32_t width, std::int32_t height,
              std::int32_t scheme);

    /// The pointer, in pixels of the area drawn last; button 0 is the left one.
    void enterPointer();
    void leavePointer();
    void movePointer(std::int32_t x, std::int32_t y);
    void pressButton(std::int32_t button, std::int32_t x, std::int32_t y);
    void releaseButton(std::int32_t button, std::int32_t x, std::int32_t y);

    /// One step of the wheel; forward is away from the user.
    void turnWheel(bool forward, std::int32_t x, std::int32_t y);

    /// Lets the control make its pages in the panel, put its settings into the widgets, and read
    /// the widget of that name after the user has changed it.
    void buildPanel(const Host::Ref<Host::IHostPropertyPanel>& panel);
    void fillPanel(const Host::Ref<Host::IHostPropertyPanel>& panel);
    void readWidget(const std::wstring& name, const Host::Ref<Host::IHostObject>& widget);

    /// Whether the control has something to copy, and lets it put its text on the clipboard of its
    /// module.
    bool canCopy();
    void copy();

private:
    using MessageCode = Meridax::VisualControls::Api::MessageCode;

    void send(MessageCode code, const MessageList& list, MessageAnswer* answer = nullptr);
    bool ask(MessageCode code, const MessageList& list);

    MemoryHost& host_;
    Host::Ref<Meridax::VisualControls::Api::IMeridaxPlugin> control_;
};

}  // namespace Rotavue::HostKit
