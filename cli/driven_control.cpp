#include "cli/driven_control.h"

#include "host_kit/memory/call.h"
#include "plugin/framework/host/host_error.h"

#include <stdexcept>

namespace Rotavue::Cli {

namespace {

using Meridax::VisualControls::Api::MessageCode;

constexpr std::int32_t WriteFlag = 0xFFFF;
constexpr std::int32_t ReadFlag = 0;
constexpr std::int32_t GroupSlotIndex = 0;

std::string failureText(MessageCode code, const std::string& what) {
    return "the plug-in failed at message " + std::to_string(static_cast<std::uint32_t>(code)) +
           ": " + what;
}

}  // namespace

DrivenControl::DrivenControl(HostKit::Module& module, HostKit::MemoryHost& host)
    : host_(host), control_(module.makeControl()) {
    send(MessageCode::Attach, {host_.app(), host_.control()});
}

void DrivenControl::send(MessageCode code, const HostKit::MessageList& list) {
    std::int32_t status = 0;
    try {
        status = control_->message(static_cast<std::uint32_t>(code), &list, nullptr);
    } catch (const Meridax::Host::HostError& error) {
        throw std::runtime_error(
            failureText(code, "a call of the host gave " + HostKit::statusText(error.status)));
    } catch (const std::exception& error) {
        throw std::runtime_error(failureText(code, error.what()));
    }
    if (status < 0) {
        const auto unsignedStatus = static_cast<std::uint32_t>(status);
        throw std::runtime_error(failureText(code, HostKit::statusText(unsignedStatus)));
    }
}

void DrivenControl::assignmentChanged() {
    send(MessageCode::ChannelsChanged, {GroupSlotIndex});
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

void DrivenControl::draw(Meridax::Host::Ref<Meridax::Host::IHostCanvas> canvas, std::int32_t width,
                         std::int32_t height, std::int32_t scheme) {
    constexpr std::int32_t NotRead = 0;
    send(MessageCode::Draw, {std::move(canvas), 0, 0, width, height, NotRead, NotRead, scheme});
}

void DrivenControl::copy() {
    send(MessageCode::Copy, {});
}

void DrivenControl::movePointer(std::int32_t x, std::int32_t y) {
    constexpr std::int32_t NoKeys = 0;
    send(MessageCode::PointerEntered, {});
    send(MessageCode::PointerMoved, {NoKeys, x, y});
}

}  // namespace Rotavue::Cli
