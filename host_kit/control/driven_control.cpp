#include "host_kit/control/driven_control.h"

#include "host_kit/memory/call.h"
#include "plugin/framework/host/host_error.h"

#include <stdexcept>
#include <variant>

namespace Rotavue::HostKit {

namespace {

using Meridax::VisualControls::Api::IMeridaxPlugin;
using Meridax::VisualControls::Api::MessageCode;

constexpr std::int32_t WriteFlag = 0xFFFF;
constexpr std::int32_t ReadFlag = 0;
constexpr std::int32_t GroupSlotIndex = 0;
constexpr std::int32_t NoKeys = 0;

std::string failureText(MessageCode code, const std::string& what) {
    return "the plug-in failed at message " + std::to_string(static_cast<std::uint32_t>(code)) +
           ": " + what;
}

}  // namespace

DrivenControl::DrivenControl(Module& module, MemoryHost& host)
    : host_(host), control_(module.makeControl()) {
    send(MessageCode::Attach, {host_.app(), host_.control()});
}

void DrivenControl::send(MessageCode code, const MessageList& list, MessageAnswer* answer) {
    // Whatever the message leads to, the control lives until it is over.
    const Host::Ref<IMeridaxPlugin> control = control_;
    std::int32_t status = 0;
    try {
        status = control->message(static_cast<std::uint32_t>(code), &list, answer);
    } catch (const Host::HostError& error) {
        throw std::runtime_error(
            failureText(code, "a call of the host gave " + statusText(error.status)));
    } catch (const std::exception& error) {
        throw std::runtime_error(failureText(code, error.what()));
    }
    if (status < 0) {
        const auto unsignedStatus = static_cast<std::uint32_t>(status);
        throw std::runtime_error(failureText(code, statusText(unsignedStatus)));
    }
}

bool DrivenControl::ask(MessageCode code, const MessageList& list) {
    MessageAnswer answer;
    send(code, list, &answer);
    const bool* yes = std::get_if<bool>(&answer.value());
    return yes != nullptr && *yes;
}

void DrivenControl::assignmentChanged() {
    send(MessageCode::ChannelsChanged, {GroupSlotIndex});
}

bool DrivenControl::accepts(const std::string& channel) {
    return ask(MessageCode::ChannelCheck, {host_.channel(channel)});
}

bool DrivenControl::acceptsGroup(std::int32_t group) {
    return ask(MessageCode::GroupCheck, {host_.group(group)});
}

void DrivenControl::requestData() {
    MessageAnswer answer;
    send(MessageCode::DataWindow, {}, &answer);
}

void DrivenControl::load(const Settings& settings) {
    host_.description.setup = settings;
    send(MessageCode::Setup, {host_.document(), host_.node(), ReadFlag});
}

const DrivenControl::Settings& DrivenControl::save() {
    host_.description.setup.clear();
    send(MessageCode::Setup, {host_.document(), host_.node(), WriteFlag});
    return host_.description.setup;
}

void DrivenControl::draw(const Host::Ref<Host::IHostCanvas>& canvas, std::int32_t width,
                         std::int32_t height, std::int32_t scheme) {
    constexpr std::int32_t NotRead = 0;
    send(MessageCode::Draw, {canvas, 0, 0, width, height, NotRead, NotRead, scheme});
}

void DrivenControl::enterPointer() {
    send(MessageCode::PointerEntered, {});
}

void DrivenControl::leavePointer() {
    send(MessageCode::PointerLeft, {});
}

void DrivenControl::movePointer(std::int32_t x, std::int32_t y) {
    send(MessageCode::PointerMoved, {NoKeys, x, y});
}

void DrivenControl::pressButton(std::int32_t button, std::int32_t x, std::int32_t y) {
    send(MessageCode::ButtonPressed, {button, NoKeys, x, y});
}

void DrivenControl::releaseButton(std::int32_t button, std::int32_t x, std::int32_t y) {
    send(MessageCode::ButtonReleased, {button, NoKeys, x, y});
}

void DrivenControl::turnWheel(bool forward, std::int32_t x, std::int32_t y) {
    send(forward ? MessageCode::WheelForward : MessageCode::WheelBackward, {NoKeys, x, y});
}

void DrivenControl::buildPanel(const Host::Ref<Host::IHostPropertyPanel>& panel) {
    send(MessageCode::BuildProperties, {panel});
}

void DrivenControl::fillPanel(const Host::Ref<Host::IHostPropertyPanel>& panel) {
    send(MessageCode::FillProperties, {panel});
}

void DrivenControl::readWidget(const std::wstring& name,
                               const Host::Ref<Host::IHostObject>& widget) {
    send(MessageCode::ReadProperty, {name, widget});
}

bool DrivenControl::canCopy() {
    return ask(MessageCode::CanCopy, {});
}

void DrivenControl::copy() {
    send(MessageCode::Copy, {});
}

}  // namespace Rotavue::HostKit
