#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>

namespace Meridax::Host {

/// [host implements] One assignment slot of a control. It comes from `IHostSlotList::getSlot`.
class IHostSlot : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{154B310E-83CD-4D67-BDB6-E5073B56FCFA}");

    /// 1 marks a slot that holds channel groups. [place 22]
    virtual std::int32_t getKind() = 0;

protected:
    ~IHostSlot() = default;
};

/// [host implements] The assignment slots of a control. It comes from
/// `IHostVisualControl::getSlots`.
class IHostSlotList : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{A4302D26-B5C4-4A54-B1BA-D46CF4BE3769}");

    /// The slot of that index, counted from 0. [place 15 | may be null]
    virtual Ref<IHostSlot> getSlot(std::int32_t index) = 0;

protected:
    ~IHostSlotList() = default;
};

}  // namespace Meridax::Host
