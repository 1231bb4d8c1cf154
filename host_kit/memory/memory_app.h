#pragma once

#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_data.h"

namespace Rotavue::HostKit {

class MemoryApp final : public LastingObject<Host::IHostApp> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "app"; }

    Host::Ref<Host::IHostData> getData() override;
    void showMessage(const std::wstring& text) override;
    bool isAcquiring() override;
    Host::HostVersion getVersion() override;
    Host::Ref<Host::IHostChannelList> createChannelList() override;
    Host::Ref<Host::IHostXmlFactory> GetXmlFactory() override;
};

class MemoryData final : public LastingObject<Host::IHostData> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "data"; }

    std::int32_t getBlockSize() override;
    Host::DataPosition getCurrentPosition() override;
    std::int32_t getAcquiredSampleCount() override;
    Host::DataPosition getFirstPosition() override;
    Host::DataPosition getLastPosition() override;
    bool isWholeDataset() override;
    double getSampleRate() override;

private:
    const HostFacts& facts() const { return host_.description.host; }
};

}  // namespace Rotavue::HostKit
