#include "plugin/framework/message_handlers.h"

#include "plugin/framework/argument_reader.h"
#include "plugin/framework/clipboard_copy.h"
#include "plugin/framework/color_scheme.h"
#include "plugin/framework/host/status.h"
#include "plugin/framework/version_gate.h"
#include "plugin/setup_document/meridax_dcom_node.h"

#include <array>

namespace Meridax::VisualControls::Api {

namespace {

using Host::Ref;

constexpr std::int32_t Done = Host::Status::asResult(Host::Status::Ok);

/// `to` - `from`, wrapped around where it does not fit.
constexpr std::int32_t distance(std::int32_t from, std::int32_t to) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(to) -
                                     static_cast<std::uint32_t>(from));
}

std::int32_t turnWheel(const MessageCall& call, bool direction) {
    const ArgumentReader arguments(call.arguments);
    const ShiftState shift = arguments.shiftState(0);
    const std::int32_t x = arguments.integer(1);
    const std::int32_t y = arguments.integer(2);
    call.bridge.control->onMouseWheel(shift, x, y, direction);
    return Done;
}

using ButtonOperation = void (VisualControl::*)(std::uint8_t, ShiftState, std::int32_t,
                                                std::int32_t);

std::int32_t forwardButton(const MessageCall& call, ButtonOperation operation) {
    const ArgumentReader arguments(call.arguments);
    const std::uint8_t button = arguments.byte(0);
    const ShiftState shift = arguments.shiftState(1);
    const std::int32_t x = arguments.integer(2);
    const std::int32_t y = arguments.integer(3);
    (call.bridge.control.get()->*operation)(button, shift, x, y);
    return Done;
}

DrawContext readDrawContext(const ArgumentReader& arguments) {
    DrawContext context;
    context.canvas = arguments.object<Host::IHostCanvas>(0);
    context.x = arguments.integer(1);
    context.y = arguments.integer(2);
    context.width = distance(context.x, arguments.integer(3));
    context.height = distance(context.y, arguments.integer(4));
    // Elements 5 and 6 lie in the list, and nothing reads them.
    const ColorScheme& scheme = schemeOf(arguments.integer(7));
    context.backgroundColor = scheme.background;
    context.gridColor = scheme.grid;
    context.textColor = scheme.text;
    context.axisColor = scheme.axis;
    context.borderColor = scheme.border;
    return context;
}

}  // namespace

std::int32_t ignore(const MessageCall& /*call*/) {
    return Done;
}

std::int32_t answerInterfaceQuery(const MessageCall& call) {
    call.result.putInteger16(1);
    return Done;
}

std::int32_t attach(const MessageCall& call) {
    BridgeParts& bridge = call.bridge;
    const ArgumentReader arguments(call.arguments);
    bridge.hostApp = arguments.object<Host::IHostApp>(0);
    bridge.control->hostApp = bridge.hostApp;
    bridge.hostControl = arguments.object<Host::IHostVisualControl>(1);
    bridge.control->hostControl = bridge.hostControl;
    const std::int32_t status = passVersionGate(bridge.hostApp);
    if (status == Done) bridge.control->onAttached();
    return status;
}

std::int32_t checkChannel(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    const Ref<Host::IHostChannel> channel = arguments.object<Host::IHostChannel>(0);
    call.result.putBoolean(call.bridge.control->acceptsChannel(channel));
    return Done;
}

std::int32_t requestDataWindow(const MessageCall& call) {
    call.result.putFourIntegers();
    Host::DataPosition first;
    Host::DataPosition second;
    call.bridge.control->requestData(first, second);
    const std::array numbers{first.block, first.offset, second.block, second.offset};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        call.result.setInteger(i, numbers[i]);
    return Done;
}

std::int32_t refuseQuery(const MessageCall& /*call*/) {
    return Host::Status::asResult(Host::Status::No);
}

std::int32_t turnWheelForward(const MessageCall& call) {
    return turnWheel(call, true);
}

std::int32_t turnWheelBackward(const MessageCall& call) {
    return turnWheel(call, false);
}

std::int32_t releaseButton(const MessageCall& call) {
    return forwardButton(call, &VisualControl::onMouseUp);
}

std::int32_t pressButton(const MessageCall& call) {
    return forwardButton(call, &VisualControl::onMouseDown);
}

std::int32_t movePointer(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    const ShiftState shift = arguments.shiftState(0);
    const std::int32_t x = arguments.integer(1);
    const std::int32_t y = arguments.integer(2);
    call.bridge.control->onMouseMove(shift, x, y);
    return Done;
}

std::int32_t notifyClose(const MessageCall& call) {
    call.bridge.control->onClose();
    return Done;
}

std::int32_t checkGroup(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    const Ref<Host::IHostObject> group = arguments.anyObject(0);
    call.result.putBoolean(call.bridge.control->acceptsGroup(group));
    return Done;
}

std::int32_t enterPointer(const MessageCall& call) {
    call.bridge.control->onMouseEnter();
    return Done;
}

std::int32_t leavePointer(const MessageCall& call) {
    call.bridge.control->onMouseLeave();
    return Done;
}

std::int32_t notifyGroupChange(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    const Ref<Host::IHostObject> object = arguments.anyObject(0);
    call.bridge.control->onGroupChanged(object);
    return Done;
}

std::int32_t askCanCopy(const MessageCall& call) {
    call.result.putBoolean(call.bridge.control->canCopyToClipboard());
    return Done;
}

std::int32_t copyText(const MessageCall& call) {
    copyToClipboard(call.bridge.clipboard, call.bridge.control->clipboardText());
    return Done;
}

std::int32_t transferSetup(const MessageCall& call) {
    constexpr std::uint16_t Save = 0xFFFF;  // no other word does, 1 included
    const ArgumentReader arguments(call.arguments);
    const Ref<Host::IHostXmlDocument> document = arguments.object<Host::IHostXmlDocument>(0);
    const Ref<Host::IHostXmlNode> node = arguments.object<Host::IHostXmlNode>(1);
    const bool writing = arguments.word(2) == Save;
    if (!document || !node) return Done;
    Utils::Dcom::Utils::MeridaxDCOMNode setup(document, node);
    setup.setWriting(writing);
    call.bridge.control->persistSetup(setup);
    return Done;
}

std::int32_t buildProperties(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    const Ref<Host::IHostPropertyPanel> panel = arguments.object<Host::IHostPropertyPanel>(0);
    call.bridge.control->buildProperties(panel);
    return Done;
}

std::int32_t fillProperties(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    const Ref<Host::IHostPropertyPanel> panel = arguments.object<Host::IHostPropertyPanel>(0);
    call.bridge.control->fillProperties(panel);
    return Done;
}

std::int32_t readProperty(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    std::wstring text = arguments.text(0);
    const Ref<Host::IHostPropertyControl> widget = arguments.object<Host::IHostPropertyControl>(1);
    call.bridge.control->readProperty(std::move(text), widget);
    return Done;
}

std::int32_t notifyPropertyEvent(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    std::wstring text = arguments.text(0);
    const Ref<Host::IHostObject> object = arguments.anyObject(1);
    const std::int32_t number = arguments.integer(2);
    call.bridge.control->onPropertyEvent(std::move(text), object, number);
    return Done;
}

std::int32_t draw(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    const DrawContext context = readDrawContext(arguments);
    call.bridge.control->draw(context);
    return Done;
}

std::int32_t notifyChannelsChange(const MessageCall& call) {
    const ArgumentReader arguments(call.arguments);
    const std::int32_t slotIndex = arguments.integer(0);
    call.bridge.control->onChannelsChanged(slotIndex);
    return Done;
}

}  // namespace Meridax::VisualControls::Api
