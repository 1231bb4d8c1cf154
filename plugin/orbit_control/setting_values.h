#pragma once

#include <cstdint>

namespace Meridax::VisualControls::Rotavue {

/// Values of `historyType`. Any other number is kept as it came and read as revolutions.
namespace HistoryType {
inline constexpr std::int32_t Revolutions = 0;
inline constexpr std::int32_t Time = 1;
}  // namespace HistoryType

/// Values of `displayType`. Any other number is kept as it came and read as time.
namespace DisplayType {
inline constexpr std::int32_t Rpm = 0;
inline constexpr std::int32_t Time = 1;
}  // namespace DisplayType

}  // namespace Meridax::VisualControls::Rotavue
