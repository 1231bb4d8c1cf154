#include "workbench/window/docks/time_lanes.h"

#include "workbench/window/docks/number_text.h"

#include <algorithm>
#include <limits>

namespace Rotavue::Workbench {

namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();

PlotLane probeLane(const std::shared_ptr<const PlaneSource>& source, LaneColor color) {
    const Recording& recording = source->recording;
    const std::string& unit = recording.machine.unit;
    const bool isX = color == LaneColor::X;
    PlotLane lane{.name = isX ? QStringLiteral("X") : QStringLiteral("Y"),
                  .unit = QString::fromStdString(unit),
                  .color = color,
                  .trace = std::make_shared<SampleTrace>(isX ? recording.x : recording.y,
                                                         recording.sampleRate, source)};
    const double span = lane.trace->range().value_or(PlotRange{0.0, 0.0}).length();
    lane.decimals = std::max(displacementPlaces(unit), placesForSpan(span));
    return lane;
}

/// A few values for each pixel of a wide screen; a gap where no turn is seen.
PlotLane speedLane(const PlaneSource& source) {
    constexpr std::size_t Values = 4000;
    const double duration = source.recording.duration();
    const std::size_t count = std::clamp<std::size_t>(source.recording.sampleCount(), 2, Values);
    const double rate = static_cast<double>(count - 1) / duration;
    const auto speeds = std::make_shared<std::vector<double>>(count, Gap);
    for (std::size_t i = 0; i < count; ++i)
        if (const double speed = source.track.speedAt(static_cast<double>(i) / rate); speed > 0.0)
            (*speeds)[i] = speed;
    return {.name = QStringLiteral("Speed"),
            .unit = QStringLiteral("rpm"),
            .color = LaneColor::Neutral,
            .trace = std::make_shared<SampleTrace>(*speeds, rate, speeds),
            .decimals = 0,
            .fromZero = true,
            .tellsLast = true};
}

std::vector<double> passingsOf(const ShaftTrack& track) {
    std::vector<double> times;
    for (const ShaftRun& run : track.runs())
        for (std::int64_t turn = 0; turn <= run.turnCount(); ++turn)
            times.push_back(run.timeOf(static_cast<double>(turn)));
    return times;
}

}  // namespace

TimeLanes timeLanes(const std::shared_ptr<const PlaneSource>& source) {
    TimeLanes lanes;
    lanes.probes = {probeLane(source, LaneColor::X), probeLane(source, LaneColor::Y)};
    if (source->recording.hasTacho()) lanes.speed = {speedLane(*source)};
    lanes.passings = passingsOf(source->track);
    return lanes;
}

}  // namespace Rotavue::Workbench
