#pragma once

#include "plugin/framework/host/data/host_channel.h"
#include "plugin/orbit_graph/orbit_curve.h"

namespace Meridax::VisualControls::Rotavue {

/// Axis 0 of an array channel: element k stands at start + k * step.
struct ArrayAxis {
    double start = 0;
    double step = 0;
};

/// Asks the channel for its axes, for axis 0, for start and step. Raises 0x80004003 where an array
/// has no axis.
ArrayAxis readArrayAxis(Host::IHostChannel& channel);

/// The display data of a channel. One that isn't an array keeps the axis of a new record.
ChannelInfo fillChannelInfo(Host::IHostChannel& channel);

}  // namespace Meridax::VisualControls::Rotavue
