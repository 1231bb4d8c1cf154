#pragma once

#include "workbench/analysis/averaged_orbit.h"
#include "workbench/analysis/field_vector.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// The direct orbit by shaft angle: the whole turns of the span one behind the other, none of them
/// averaged. It holds what the samples hold, and as an averaged orbit it has what a raw one lacks:
/// the keyphasor's dot of every turn and the blank before it.
///
/// A turn has as many points as it has samples, as a power of two from 256 to 1024, or fewer where
/// the turns are so many that they would be more than 65,536 points together (64 at least). Of more
/// than MostRevolutions turns these are the newest.
///
/// Throws AnalysisError if there is no whole turn (as `ShaftTrack::wholeTurns`) or if one of the
/// turns has a gap; and ReadingCancelled.
AveragedOrbit directOrbit(const Recording& recording, const ShaftTrack& track, const TimeSpan& span,
                          const ReadingProgress& progress = ReadingProgress());

/// The orbit without what one order makes of it. With a direct orbit and its first order it is the
/// "not 1X" orbit: what is left beside unbalance.
AveragedOrbit withoutOrder(AveragedOrbit orbit, const OrderVectors& order);

}  // namespace Rotavue::Workbench
