#pragma once

#include <QColor>

#include <cstdint>

namespace Rotavue::Workbench {

/// The colour encoding of this host: 0x00RRGGBB, so that 0xFF9900 is an orange and 0x2D5DF1 a blue.
/// The plug-in passes colours on unchanged; whoever hands it one (a channel, a setting) uses this
/// encoding as well. The highest byte is not looked at: every colour is opaque.
inline QColor fromHostColor(std::uint32_t color) {
    return QColor::fromRgb(0xFF000000U | color);
}

/// The same encoding, the other way.
inline std::uint32_t toHostColor(const QColor& color) {
    return color.rgb() & 0x00FFFFFFU;
}

}  // namespace Rotavue::Workbench
