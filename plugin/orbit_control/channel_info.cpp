#include "plugin/orbit_control/channel_info.h"

#include "plugin/framework/host/data/host_axes.h"

namespace Meridax::VisualControls::Rotavue {

ArrayAxis readArrayAxis(Host::IHostChannel& channel) {
    const Host::Ref<Host::IHostAxis> axis = channel.getAxes()->getAxis(0);
    ArrayAxis result;
    result.start = axis->getStart();
    result.step = axis->getStep();
    return result;
}

ChannelInfo fillChannelInfo(Host::IHostChannel& channel) {
    ChannelInfo info;
    info.color = channel.getColor();
    if (channel.isArray()) {
        const ArrayAxis axis = readArrayAxis(channel);
        info.axisStart = axis.start;
        info.axisStep = axis.step;
    }
    info.unit = channel.getUnit();
    info.name = channel.getName();
    info.displayValue = channel.getDisplayValue();
    return info;
}

}  // namespace Meridax::VisualControls::Rotavue
