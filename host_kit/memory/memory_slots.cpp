#include "host_kit/memory/memory_slots.h"

#include "host_kit/memory/host_objects.h"

namespace Rotavue::HostKit {

namespace {

const SlotDescription* slotAt(const MemoryHost& host, std::int32_t index) {
    const auto& slots = host.description.assigned.slots;
    const auto position = static_cast<std::uint32_t>(index);
    return position < slots.size() ? &slots[position] : nullptr;
}

}  // namespace

MemorySlot::MemorySlot(MemoryHost& host, std::int32_t index) : LastingObject(host), index_(index) {}

std::int32_t MemorySlot::getKind() {
    return call(operation("IHostSlot.getKind"), [&] {
        const SlotDescription* slot = slotAt(host_, index_);
        return slot != nullptr ? slot->kind : 0;
    });
}

Host::Ref<Host::IHostSlot> MemorySlots::getSlot(std::int32_t index) {
    return call(
        operation("IHostSlotList.getSlot"),
        [&]() -> Host::Ref<Host::IHostSlot> {
            if (slotAt(host_, index) == nullptr) return {};
            return Host::Ref<Host::IHostSlot>::share(&host_.objects().slot(index));
        },
        index);
}

}  // namespace Rotavue::HostKit
