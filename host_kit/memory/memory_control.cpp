#include "host_kit/memory/memory_control.h"

#include "host_kit/memory/host_objects.h"

namespace Rotavue::HostKit {

namespace {

/// The ids in a list, as the line of a data request shows them.
CallValue::List idsIn(const Host::IHostChannelList& list) {
    CallValue::List ids;
    const auto* known = dynamic_cast<const ChannelItems*>(&list);
    if (known == nullptr) return ids;
    for (const ChannelItem& item : known->items())
        ids.push_back(item ? toCallValue(*item) : CallValue{});
    return ids;
}

}  // namespace

CallValue toCallValue(const EditAnswer& answer) {
    return {CallValue::List{toCallValue(answer.accepted), toCallValue(answer.text)}};
}

Host::Ref<Host::IHostChannelCollection> MemoryControl::getChannels() {
    return call(operation("IHostVisualControl.getChannels"), [&] {
        return Host::Ref<Host::IHostChannelCollection>::share(&host_.objects().channels);
    });
}

void MemoryControl::invalidate() {
    call(operation("IHostVisualControl.invalidate"), [&] {
        if (HostListener* listener = host_.listener()) listener->invalidated();
    });
}

Host::Ref<Host::IHostGroupCollection> MemoryControl::getGroups() {
    return call(operation("IHostVisualControl.getGroups"), [&] {
        return Host::Ref<Host::IHostGroupCollection>::share(&host_.objects().groups);
    });
}

void MemoryControl::requestData(Host::DataPosition from, Host::DataPosition to, std::int32_t mode,
                                bool flag, Host::IHostChannelList& channels) {
    call(
        operation("IHostVisualControl.requestData"), [] {}, from, to, mode, flag, idsIn(channels));
}

void MemoryControl::refreshSetup() {
    call(operation("IHostVisualControl.refreshSetup"), [&] {
        if (HostListener* listener = host_.listener()) listener->setupRefreshed();
    });
}

bool MemoryControl::editText(std::int32_t x, std::int32_t y, std::wstring& text) {
    const EditAnswer answer = call(
        operation("IHostVisualControl.editText"),
        [&] {
            HostListener* listener = host_.listener();
            return listener ? listener->editText(x, y, text) : host_.description.host.editText;
        },
        x, y, text);
    text = answer.text;
    return answer.accepted;
}

Host::Ref<Host::IHostSlotList> MemoryControl::getSlots() {
    return call(operation("IHostVisualControl.getSlots"),
                [&] { return Host::Ref<Host::IHostSlotList>::share(&host_.objects().slots); });
}

}  // namespace Rotavue::HostKit
