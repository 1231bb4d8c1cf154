#pragma once

#include "plugin/framework/bridge.h"
#include "plugin/framework/message_codes.h"
#include "tests/plugin/framework/doubles/clipboard_steps.h"
#include "tests/plugin/framework/doubles/list_arguments.h"
#include "tests/plugin/orbit_control/full_frame.h"

#include <limits>
#include <memory>

namespace Meridax::VisualControls::Rotavue {

inline constexpr std::int32_t Smallest = std::numeric_limits<std::int32_t>::min();
inline constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

/// A plug-in that a host talks to by messages alone, with the pointer at rest in the plot: one
/// channel of each kind, sound, its history by time.
class AttachedPlugin : public FullFrame {
protected:
    AttachedPlugin() {
        host.description.setup = {{L"historyType", L"1"}, {L"displayTime", L"5"}};
        host.description.host.currentPosition = {1, 0};
        host.description.assigned.slots = {{1}};
        attach();
        send(Api::MessageCode::Setup,
             {Api::object(host.document()), Api::object(host.node()), Api::number(0)});
        send(Api::MessageCode::BuildProperties, {Api::object(host.panel())});
        send(Api::MessageCode::PointerEntered, {});
        rest();
        frame();
    }

    void attach() {
        send(Api::MessageCode::Attach, {Api::object(host.app()), Api::object(host.control())});
    }

    void rest() { moveTo(150, 150); }

    void moveTo(std::int32_t x, std::int32_t y) {
        send(Api::MessageCode::PointerMoved, {Api::number(0), Api::number(x), Api::number(y)});
    }

    void send(Api::MessageCode code, const Api::ListArguments& list) {
        plugin->message(static_cast<std::uint32_t>(code), &list, nullptr);
    }

    void drawFrame() { send(Api::MessageCode::Draw, frameWithin(0, 0, 300, 300)); }

    Api::ListArguments frameWithin(std::int32_t left, std::int32_t top, std::int32_t right,
                                   std::int32_t bottom) {
        return {Api::object(host.canvas()), Api::number(left), Api::number(top), Api::number(right),
                Api::number(bottom),        Api::number(0),    Api::number(0),   Api::number(0)};
    }

    /// What a frame puts on the canvas.
    Lines frame() {
        host.takeCalls();
        Lines lines = callsOf([&] { drawFrame(); }, drawing());
        host.gate.watch(nullptr, {});
        return lines;
    }

    Api::ClipboardSteps clipboard;
    Api::LiveObjects living;

private:
    const Api::ControlMaker maker_ = [] { return std::make_unique<RotavueVisualControl>(); };

protected:
    Host::Ref<Api::IMeridaxPlugin> plugin =
        Api::VisualControlBridge::create({maker_, clipboard, living})
            .offered<Api::IMeridaxPlugin>();
};

}  // namespace Meridax::VisualControls::Rotavue
