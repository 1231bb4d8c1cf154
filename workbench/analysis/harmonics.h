#pragma once

#include <span>
#include <string>
#include <vector>

#include "workbench/analysis/field_vector.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// At most as many orders are sought at once.
inline constexpr std::size_t MostOrders = 64;

/// Orders of the shaft's vibration over whole turns.
///
/// For whole orders the phase lag counts from any pulse. For others the phase moves from turn to
/// turn, and the lag counts from the pulse that the window begins with.
struct Harmonics {
    std::vector<OrderVectors> orders = {};  ///< peak, in the unit; in the order asked for
    std::string unit;                       ///< of the amplitudes; empty: not given
    TimeSpan span = {};                     ///< what was used, from pulse to pulse
    double turns = 0.0;                     ///< in the span
    double speed = 0.0;                     ///< rpm, the mean over the span
};

/// Throws AnalysisError unless there are 1 to `MostOrders` orders, all of them above 0.
void checkOrders(std::span<const double> orders);

/// Finds the orders in the longest stretch of whole turns that the span holds. Samples in a gap of
/// either probe are left out.
///
/// Throws AnalysisError as `checkOrders`; if there is no whole turn (as `ShaftTrack::wholeTurns`);
/// if an order comes twice, or lies closer to another or to 0 than the turns can tell apart (one
/// cycle in the window); if it needs more samples a turn than there are (more than two a cycle); or
/// if gaps take more than half of the samples; and ReadingCancelled.
Harmonics findHarmonics(const Recording& recording, const ShaftTrack& track,
                        std::span<const double> orders, const TimeSpan& span = {},
                        const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
