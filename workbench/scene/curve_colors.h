#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The colours that curves have unless somebody chooses others, in the host's encoding. Told apart
/// by people who see colours differently, and from the clearance's orange.
namespace Rotavue::Workbench {

inline constexpr std::array<std::uint32_t, 8> CurveColorsOnLight{
    0x0072B2, 0xB8336A, 0x009E73, 0x7A5195, 0x555555, 0x8C510A, 0x5500DD, 0x441100};
inline constexpr std::array<std::uint32_t, 8> CurveColorsOnDark{
    0x56B4E9, 0xF781BF, 0x2FD6A3, 0xC9A0FF, 0xB0B0B0, 0xE3D26F, 0x7766FF, 0xDD4444};

/// The colour of the curve of that number, counted from 0, on a light or a dark background.
constexpr std::uint32_t usualCurveColor(std::size_t index, bool light) {
    const auto& colors = light ? CurveColorsOnLight : CurveColorsOnDark;
    return colors[index % colors.size()];
}

/// The bearing's clearance, on either background.
inline constexpr std::uint32_t UsualClearanceColor = 0xFF9900;

}  // namespace Rotavue::Workbench
