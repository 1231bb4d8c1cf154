#pragma once

#include <QColor>
#include <QIcon>

#include <cstdint>

namespace Rotavue::Workbench {

enum class TransportSign : std::uint8_t { Start, Back, Play, Pause, Forward, End, Loop };

/// The sign in one colour, sharp at every size and scale.
QIcon transportIcon(TransportSign sign, const QColor& color);

}  // namespace Rotavue::Workbench
