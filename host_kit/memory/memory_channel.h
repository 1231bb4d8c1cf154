#pragma once

#include "host_kit/memory/memory_axes.h"
#include "host_kit/memory/memory_object.h"
#include "host_kit/memory/memory_properties.h"
#include "plugin/framework/host/data/host_channel.h"

namespace Rotavue::HostKit {

class MemoryChannel final : public LastingObject<Host::IHostChannel> {
public:
    MemoryChannel(MemoryHost& host, std::string id);

    std::string name() const override { return "channel:" + id_; }
    std::optional<CallValue> logName() const override { return toCallValue(id_); }
    const std::string& id() const { return id_; }

    std::int32_t getBufferSize() override;
    std::int32_t getSampleCount() override;
    std::int32_t getWritePosition() override;
    std::wstring getName() override;
    double getTimestamp(std::int32_t index) override;
    bool isAsynchronous() override;
    std::wstring getUnit() override;
    std::uint32_t getColor() override;
    double getDisplayValue() override;
    std::int32_t getSampleCounter() override;
    std::int32_t getRateDivider() override;
    Host::Ref<Host::IHostAxisList> getAxes() override;
    bool isArray() override;
    std::int32_t getArraySize() override;
    std::int32_t getStorageKind() override;
    double scaleValue(double raw) override;
    Host::Ref<Host::IHostProperties> getProperties() override;
    double getValueAtTime(double seconds, std::int32_t& cursor, std::int16_t mode,
                          std::int32_t element, std::int32_t component) override;
    double getValue(std::int32_t linearIndex, std::int32_t component) override;
    double getSampleRate() override;
    std::int32_t getDecimals() override;

private:
    std::int32_t sampleAt(double seconds) const;

    std::string id_;
    const ChannelDescription& described_;
    MemoryProperties properties_;
    MemoryAxisList axes_;
};

}  // namespace Rotavue::HostKit
