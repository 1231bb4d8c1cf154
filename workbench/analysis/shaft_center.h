#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// Where the shaft is when its displacement is 0.
///   Centre             in the middle of the clearance: a vertical machine, or gaps that were set
///   so BottomOfClearance  at (0, - half the clearance's height): a horizontal machine at rest
enum class RestPosition { Centre, BottomOfClearance };

struct ShaftCenterOptions {
    TimeSpan span = {};
    double interval = 1.0;  ///< s for each position, one sample or more
    RestPosition rest = RestPosition::Centre;
    std::optional<TimeSpan> restSpan =
        {};  ///< the shaft rests here: its mean becomes displacement 0
};

/// The shaft's mean position over one interval.
struct ShaftCenterPosition {
    double x = 0.0;  ///< displacement toward the X probe, in the unit
    double y = 0.0;
    double speed = 0.0;  ///< rpm; 0 where no turn is seen, so also without keyphasor
    double time = 0.0;   ///< s after the first sample, the middle of the interval
};

struct ShaftCenterHistory {
    std::vector<ShaftCenterPosition> positions;  ///< time rising, one or more
    std::string unit;                            ///< empty: not given
    double startTime = 0.0;                      ///< s, what the recording's own time begins with
    std::vector<std::string> notes;
};

/// Raises AnalysisError where a recording cannot tell where the shaft is against its place at rest:
/// what `shaftCenterHistory` says of AC coupling, the clearance, the probes and the rest span.
void checkRest(const Recording& recording, RestPosition rest,
               const std::optional<TimeSpan>& restSpan = {});

/// Averages the gap over one interval after the other, the last one shortened if need be (and left
/// out below half an interval, unless it is the only one). Where whole turns make up half of an
/// interval or more, it is cut down to them, so that vibration does not shift the mean. An interval
/// with fewer than half of its samples free of gaps gives no position; a note counts them.
/// Another note says that the shaft turns in the rest span.
///
/// Throws AnalysisError if the recording has lost its mean by AC coupling, if the bottom of the
/// clearance is wanted and no clearance height is given or the probes look along one line, if the
/// interval is shorter than a sample or longer than 1e9 s, if the rest span has no sample, or if no
/// interval gives a position; and ReadingCancelled.
ShaftCenterHistory shaftCenterHistory(const Recording& recording, const ShaftTrack& track,
                                      const ShaftCenterOptions& options = {},
                                      const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
