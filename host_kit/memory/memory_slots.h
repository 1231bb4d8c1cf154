#pragma once

#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/data/host_slots.h"

namespace Rotavue::HostKit {

/// One slot of the assignment; kind 0 where the description no longer has it.
class MemorySlot final : public LastingObject<Host::IHostSlot> {
public:
    MemorySlot(MemoryHost& host, std::int32_t index);

    std::string name() const override { return "slot:" + std::to_string(index_); }

    std::int32_t getKind() override;

private:
    std::int32_t index_;
};

class MemorySlots final : public LastingObject<Host::IHostSlotList> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "slots"; }

    Host::Ref<Host::IHostSlot> getSlot(std::int32_t index) override;
};

}  // namespace Rotavue::HostKit
