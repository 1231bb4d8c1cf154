#pragma once

#include "host_kit/memory/channel_description.h"
#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/data/host_axes.h"

#include <map>

namespace Rotavue::HostKit {

/// One axis of a channel; 0.0 throughout where the description no longer has it.
class MemoryAxis final : public LastingObject<Host::IHostAxis> {
public:
    MemoryAxis(MemoryHost& host, const ChannelDescription& channel, std::int32_t index);

    std::string name() const override { return "axis:" + std::to_string(index_); }

    double getStart() override;
    double getStep() override;

private:
    AxisDescription described() const;

    const ChannelDescription& channel_;
    std::int32_t index_;
};

class MemoryAxisList final : public LastingObject<Host::IHostAxisList> {
public:
    MemoryAxisList(MemoryHost& host, const ChannelDescription& channel);

    std::string name() const override { return "axes"; }

    Host::Ref<Host::IHostAxis> getAxis(std::int32_t index) override;

private:
    const ChannelDescription& channel_;
    std::map<std::int32_t, std::unique_ptr<MemoryAxis>> axes_;
};

}  // namespace Rotavue::HostKit
