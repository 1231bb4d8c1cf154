#pragma once

#include <cstdint>

/// Where the values of an orbit stand in the host's channels.
namespace Meridax::VisualControls::Rotavue {

/// The two sensor values of one sample; a Harmonic channel has the real and the imaginary part of a
/// phasor there.
namespace Component {
inline constexpr std::int32_t Plain = 0;  ///< the value of a tacho or shaft-centre channel
inline constexpr std::int32_t X = 4;
inline constexpr std::int32_t Y = 5;
}  // namespace Component

/// The array of a shaft-centre channel. Mind the order of the gaps: the sensor at the Y angle comes
/// first, the other way round from the other kinds of channel.
namespace ShaftCenterElement {
inline constexpr std::int32_t GapAtYAngle = 0;
inline constexpr std::int32_t GapAtXAngle = 1;
inline constexpr std::int32_t Speed = 2;
inline constexpr std::int32_t Time = 3;
}  // namespace ShaftCenterElement

/// Value of `getStorageKind`: nothing to show outside a measurement.
inline constexpr std::int32_t StoredNowhere = 1;

}  // namespace Meridax::VisualControls::Rotavue
