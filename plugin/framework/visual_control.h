#pragma once

#include "plugin/framework/draw_context.h"
#include "plugin/framework/host/data/data_position.h"
#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_channel.h"
#include "plugin/framework/host/data/host_visual_control.h"
#include "plugin/framework/host/panel/host_property_panel.h"
#include "plugin/framework/host/panel/host_widgets.h"
#include "plugin/framework/host/ref.h"
#include "plugin/framework/shift_state.h"

#include <cstdint>
#include <string>

namespace Meridax::Utils::Serialization {
class Node;
}

namespace Meridax::VisualControls::Api {

/// The base class of every visual control that the framework can carry. Each operation has a
/// harmless default; a control overrides what it needs. The bridge decodes the host's messages and
/// calls these operations, one message after the other on one thread.
///
/// The life of a control:
///  1. made by the bridge, together with it: both host references are null, and a constructor
///     must not touch the host;
///  2. messages may come at any time, also before attachment: each operation copes with that;
///  3. message 2 stores `hostApp`, then `hostControl`, and runs the version gate;
///  4. `onAttached`, where the gate passed; a refused control goes on being served;
///  5. setup, panel, checks, pointer and draws in whatever order the host chooses;
///  6. destroyed with the bridge: derived classes first, then `hostApp`, then `hostControl`.
///
/// An object argument is a reference of the operation's own, which it releases by letting it go;
/// text arguments are its own as well. Failures are thrown, never returned.
class VisualControl {
public:
    VisualControl() = default;
    VisualControl(const VisualControl&) = delete;
    VisualControl& operator=(const VisualControl&) = delete;

    virtual ~VisualControl();

    /// The host closes the control. [message 18]
    virtual void onClose();

    /// The host objects are there and the host is good enough. [message 2 | after attach]
    virtual void onAttached();

    /// Gives the stretch of stored data that the control needs: by default one block's length
    /// about the current position, held inside what the host has stored. Raises 0x80004003 before
    /// attachment, 0x80070057 where the host reports a block size of 0. [message 6 | after attach]
    virtual void requestData(Host::DataPosition& first, Host::DataPosition& second);

    /// Paints one frame. [message 42 | after attach]
    virtual void draw(const DrawContext& context);

    /// A button went up at a point of the canvas; button 0 is the left one. [message 10]
    virtual void onMouseUp(std::uint8_t button, ShiftState shift, std::int32_t x, std::int32_t y);

    /// A button went down. [message 11]
    virtual void onMouseDown(std::uint8_t button, ShiftState shift, std::int32_t x, std::int32_t y);

    /// The pointer came over the control. [message 25]
    virtual void onMouseEnter();

    /// The pointer left the control. [message 26]
    virtual void onMouseLeave();

    /// The pointer moved over the control. [message 12]
    virtual void onMouseMove(ShiftState shift, std::int32_t x, std::int32_t y);

    /// The wheel turned; `direction` is true for message 8 and false for message 9.
    /// [message 8 | message 9]
    virtual void onMouseWheel(ShiftState shift, std::int32_t x, std::int32_t y, bool direction);

    /// True when the channel may be assigned; by default every one may.
    /// [message 3 | owns its object arguments]
    virtual bool acceptsChannel(Host::Ref<Host::IHostChannel> channel);

    /// True when the group may be assigned; by default every one may.
    /// [message 24 | owns its object arguments]
    virtual bool acceptsGroup(Host::Ref<Host::IHostObject> group);

    /// [message 29 | owns its object arguments]
    virtual void onGroupChanged(Host::Ref<Host::IHostObject> group);

    /// Saves or loads the settings, whichever way the node goes. The node is borrowed for the call.
    /// [message 33]
    virtual void persistSetup(Utils::Serialization::Node& node);

    /// True when there is something to copy; by default there is not. [message 30]
    virtual bool canCopyToClipboard();

    /// The text for the clipboard; empty by default. [message 31]
    virtual std::wstring clipboardText();

    /// Builds the pages and widgets of the property panel. [message 34 | owns its object arguments]
    virtual void buildProperties(Host::Ref<Host::IHostPropertyPanel> panel);

    /// Fills the widgets from the settings. [message 35 | owns its object arguments]
    virtual void fillProperties(Host::Ref<Host::IHostPropertyPanel> panel);

    /// Takes the setting of the one widget that the user changed.
    /// [message 36 | owns its object arguments]
    virtual void readProperty(std::wstring text, Host::Ref<Host::IHostPropertyControl> widget);

    /// [message 37 | owns its object arguments]
    virtual void onPropertyEvent(std::wstring text, Host::Ref<Host::IHostObject> object,
                                 std::int32_t number);

    /// The assignment in a slot changed. [message 45 | after attach]
    virtual void onChannelsChanged(std::int32_t slotIndex);

    std::int32_t sampleCursor = 0;                    ///< working field of derived classes
    Host::Ref<Host::IHostVisualControl> hostControl;  ///< set by message 2
    Host::Ref<Host::IHostApp> hostApp;                ///< set by message 2
};

}  // namespace Meridax::VisualControls::Api
