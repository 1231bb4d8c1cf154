#pragma once

#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/data/host_visual_control.h"

namespace Rotavue::HostKit {

/// An editor's answer shows as [accepted, text].
CallValue toCallValue(const EditAnswer& answer);

class MemoryControl final : public LastingObject<Host::IHostVisualControl> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "control"; }

    Host::Ref<Host::IHostChannelCollection> getChannels() override;
    void invalidate() override;
    Host::Ref<Host::IHostGroupCollection> getGroups() override;
    void requestData(Host::DataPosition from, Host::DataPosition to, std::int32_t mode, bool flag,
                     Host::IHostChannelList& channels) override;
    void refreshSetup() override;
    bool editText(std::int32_t x, std::int32_t y, std::wstring& text) override;
    Host::Ref<Host::IHostSlotList> getSlots() override;
};

}  // namespace Rotavue::HostKit
