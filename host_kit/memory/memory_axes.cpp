#include "host_kit/memory/memory_axes.h"

namespace Rotavue::HostKit {

namespace {

bool hasAxis(const ChannelDescription& channel, std::int32_t index) {
    return channel.axes && static_cast<std::uint32_t>(index) < channel.axes->size();
}

}  // namespace

MemoryAxis::MemoryAxis(MemoryHost& host, const ChannelDescription& channel, std::int32_t index)
    : LastingObject(host), channel_(channel), index_(index) {}

AxisDescription MemoryAxis::described() const {
    if (!hasAxis(channel_, index_)) return {};
    return (*channel_.axes)[static_cast<std::uint32_t>(index_)];
}

double MemoryAxis::getStart() {
    return call(operation("IHostAxis.getStart"), [&] { return described().start; });
}

double MemoryAxis::getStep() {
    return call(operation("IHostAxis.getStep"), [&] { return described().step; });
}

MemoryAxisList::MemoryAxisList(MemoryHost& host, const ChannelDescription& channel)
    : LastingObject(host), channel_(channel) {}

Host::Ref<Host::IHostAxis> MemoryAxisList::getAxis(std::int32_t index) {
    return call(
        operation("IHostAxisList.getAxis"),
        [&]() -> Host::Ref<Host::IHostAxis> {
            if (!hasAxis(channel_, index)) return {};
            auto& axis = axes_[index];
            if (!axis) axis = std::make_unique<MemoryAxis>(host_, channel_, index);
            return Host::Ref<Host::IHostAxis>::share(axis.get());
        },
        index);
}

}  // namespace Rotavue::HostKit
