#include "plugin/framework/visual_control.h"

#include "plugin/framework/host/data/host_data.h"
#include "plugin/framework/host/host_error.h"

#include <algorithm>

namespace Meridax::VisualControls::Api {

namespace {

/// The position of a linear sample number. Division truncates, so that a position in front of the
/// data keeps a negative offset.
Host::DataPosition split(std::int64_t sample, std::int32_t blockSize) {
    return {static_cast<std::int32_t>(sample / blockSize),
            static_cast<std::int32_t>(sample % blockSize)};
}

}  // namespace

VisualControl::~VisualControl() = default;

void VisualControl::onClose() {}

void VisualControl::onAttached() {}

void VisualControl::requestData(Host::DataPosition& first, Host::DataPosition& second) {
    const Host::DataPosition current = hostApp->getData()->getCurrentPosition();
    const Host::DataPosition storedLast = hostApp->getData()->getLastPosition();
    const Host::DataPosition storedFirst = hostApp->getData()->getFirstPosition();
    const std::int32_t size = hostApp->getData()->getBlockSize();
    if (size == 0) throw Host::HostError(Host::Status::InvalidArgument);

    const std::int64_t centre = current.linear(size);
    const std::int64_t half = size / 2;
    first = split(std::max(centre - half, storedFirst.linear(size)), size);
    second = split(std::min(storedLast.linear(size), centre + half), size);
}

void VisualControl::draw(const DrawContext& /*context*/) {}

void VisualControl::onMouseUp(std::uint8_t /*button*/, ShiftState /*shift*/, std::int32_t /*x*/,
                              std::int32_t /*y*/) {}

void VisualControl::onMouseDown(std::uint8_t /*button*/, ShiftState /*shift*/, std::int32_t /*x*/,
                                std::int32_t /*y*/) {}

void VisualControl::onMouseEnter() {}

void VisualControl::onMouseLeave() {}

void VisualControl::onMouseMove(ShiftState /*shift*/, std::int32_t /*x*/, std::int32_t /*y*/) {}

void VisualControl::onMouseWheel(ShiftState /*shift*/, std::int32_t /*x*/, std::int32_t /*y*/,
                                 bool /*direction*/) {}

bool VisualControl::acceptsChannel(Host::Ref<Host::IHostChannel> /*channel*/) {
    return true;
}

bool VisualControl::acceptsGroup(Host::Ref<Host::IHostObject> /*group*/) {
    return true;
}

void VisualControl::onGroupChanged(Host::Ref<Host::IHostObject> /*group*/) {}

void VisualControl::persistSetup(Utils::Serialization::Node& /*node*/) {}

bool VisualControl::canCopyToClipboard() {
    return false;
}

std::wstring VisualControl::clipboardText() {
    return {};
}

void VisualControl::buildProperties(Host::Ref<Host::IHostPropertyPanel> /*panel*/) {}

void VisualControl::fillProperties(Host::Ref<Host::IHostPropertyPanel> /*panel*/) {}

void VisualControl::readProperty(std::wstring /*text*/,
                                 Host::Ref<Host::IHostPropertyControl> /*widget*/) {}

void VisualControl::onPropertyEvent(std::wstring /*text*/, Host::Ref<Host::IHostObject> /*object*/,
                                    std::int32_t /*number*/) {}

void VisualControl::onChannelsChanged(std::int32_t /*slotIndex*/) {}

}  // namespace Meridax::VisualControls::Api
