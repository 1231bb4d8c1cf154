#pragma once

#include <cstdint>

namespace Meridax::VisualControls::Api {

/// The five theme colours of a frame, in the host's encoding.
struct ColorScheme {
    std::uint32_t background;
    std::uint32_t grid;
    std::uint32_t text;
    std::uint32_t axis;
    std::uint32_t border;
};

inline constexpr ColorScheme LightScheme{0xFFFFFF, 0xD9D9D9, 0x000000, 0x333333, 0xBFBFBF};
inline constexpr ColorScheme DarkScheme{0x000000, 0x3A3A3A, 0xC0C0C0, 0x9A9A9A, 0x1D1D1D};

/// The scheme of a number: light for 1 and everything above 100, dark for all others. The gap from
/// 2 to 100 is deliberate: hosts send it and expect the dark colours.
constexpr const ColorScheme& schemeOf(std::int32_t number) {
    return number == 1 || number > 100 ? LightScheme : DarkScheme;
}

}  // namespace Meridax::VisualControls::Api
