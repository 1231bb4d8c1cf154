#pragma once

#include <cstdint>
#include <string>

#include "host_kit/memory/description.h"
#include "workbench/analysis/averaged_orbit.h"
#include "workbench/analysis/field_vector.h"
#include "workbench/analysis/harmonics.h"
#include "workbench/analysis/reference_orbit.h"
#include "workbench/analysis/shaft_center.h"
#include "workbench/analysis/sub_synchronous.h"
#include "workbench/recording/recording.h"

/// Results of the analysis as channels that a host offers to the control. Each takes the bearing of
/// the recording, so that all channels of one recording agree, and holds its values in the
/// recording's unit.
namespace Rotavue::Workbench {

/// How a channel shows in the graph.
struct ChannelStyle {
    std::string name;         ///< UTF-8
    std::uint32_t color = 0;  ///< in the host's encoding
    std::int32_t decimals = 1;
};

/// One array sample: element k is the point at axis 0's start + k * step degrees, component 4
/// toward the X probe and 5 toward the Y probe.
HostKit::ChannelDescription averageChannel(const AveragedOrbit& orbit, const Recording& recording,
                                           const ChannelStyle& style);

/// As `averageChannel`, but of the kind that is drawn without keyphasor dots.
HostKit::ChannelDescription referenceChannel(const ReferenceOrbit& reference,
                                             const Recording& recording, const ChannelStyle& style);

/// One array sample of phasors, component 4 the real and 5 the imaginary part: first the orders as
/// the Y probe sees them, then, in the same order, as the X probe does. The control draws
/// r sin(angle + phi), the field writes A cos(angle - L), hence phi = 90 degrees - L. Amplitudes
/// are written in the scale named, and the property "Orbit Amplitude" says which.
HostKit::ChannelDescription harmonicChannel(const Harmonics& harmonics, const Recording& recording,
                                            const ChannelStyle& style,
                                            AmplitudeScale scale = AmplitudeScale::Peak);

/// As many samples as the recording has, at its rate, component 4 toward the X probe and 5 toward
/// the Y probe. A gap holds the values before it (gaps.h).
HostKit::ChannelDescription subSyncChannel(SubSyncOrbit orbit, const Recording& recording,
                                           const ChannelStyle& style);

/// One sample of four elements for each position, with its own time stamp in s after the
/// recording's first sample: element 0 toward the Y probe and 1 toward the X probe, 2 the speed in
/// rpm, 3 the time in s by the recording's own clock.
HostKit::ChannelDescription shaftCenterChannel(const ShaftCenterHistory& history,
                                               const Recording& recording,
                                               const ChannelStyle& style);

/// Assigns the channel to the control as one more plain channel. The control draws it only if it
/// agrees with all others in all that they say about the bearing.
void assignDerived(HostKit::HostDescription& host, HostKit::ChannelDescription channel);

}  // namespace Rotavue::Workbench
