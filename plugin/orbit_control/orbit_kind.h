#pragma once

#include "plugin/framework/host/data/host_channel.h"
#include "plugin/orbit_graph/orbit_curve.h"

#include <cstdint>
#include <string_view>

namespace Meridax::VisualControls::Rotavue {

/// The kind that the property "OrbitType" names, upper and lower case told apart. An unset property
/// means the shaft centre; a text that isn't known counts as Raw.
OrbitKind orbitKindOf(std::wstring_view text);

/// The kind of curve that a channel carries.
OrbitKind readOrbitType(Host::IHostChannel& channel);

/// What the amplitudes of a Harmonic channel are.
enum class OrbitAmplitude : std::int32_t { Peak = 0, Rms = 1, PeakPeak = 2 };

/// From the property "Orbit Amplitude"; any text but "rms" and "peak-peak" means peak.
OrbitAmplitude readOrbitAmplitude(Host::IHostChannel& channel);

/// The number that turns an amplitude of that kind into a peak value.
double amplitudeFactor(OrbitAmplitude amplitude);

}  // namespace Meridax::VisualControls::Rotavue
