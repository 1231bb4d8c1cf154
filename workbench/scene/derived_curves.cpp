#include "workbench/scene/derived_curves.h"

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/averaged_orbit.h"
#include "workbench/analysis/direct_orbit.h"
#include "workbench/analysis/harmonics.h"
#include "workbench/analysis/reference_orbit.h"
#include "workbench/analysis/shaft_center.h"
#include "workbench/analysis/signal_check.h"
#include "workbench/analysis/sub_synchronous.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace Rotavue::Workbench {

namespace {

using HostKit::ChannelDescription;

/// The smallest number of 1, 2 or 5 times a power of ten that is not below.
double roundInterval(double value) {
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    for (const double step : {1.0, 2.0, 5.0})
        if (step * power >= value) return step * power;
    return 10.0 * power;
}

ReferenceOrbit stored(const std::filesystem::path& file) {
    try {
        return loadReference(file);
    } catch (const AnalysisError& error) {
        throw std::runtime_error(error.what());  // which names the file
    }
}

/// The mean over all turns of a recording.
ReferenceOrbit averaged(const std::filesystem::path& file, const RecordingOptions& options,
                        const ReadingProgress& progress) {
    constexpr double PartOfReading = 0.9;
    const ReadingProgress reading = progress.between(0.0, PartOfReading);
    const Recording recording = readRecording(file, options, [&](double part) {
        reading.reach(part);
        return true;
    });
    try {
        return averagedReference(recording, ShaftTrack(recording), {},
                                 progress.between(PartOfReading, 1.0));
    } catch (const AnalysisError& error) {
        throw std::runtime_error(file.string() + ": " + error.what());
    }
}

ReferenceOrbit readReference(const std::filesystem::path& file, const RecordingOptions& options,
                             const ReadingProgress& progress) {
    return file.extension() == ".json" ? stored(file) : averaged(file, options, progress);
}

}  // namespace

double usualInterval(double length, double speed, double sampleRate) {
    constexpr double Positions = 30.0;
    constexpr double Turns = 2.0;
    constexpr double SecondsPerMinute = 60.0;
    const double turning = speed > 0.0 ? Turns * SecondsPerMinute / speed : 0.0;
    return roundInterval(std::max({length / Positions, turning, 1.0 / sampleRate}));
}

DerivedCurves::DerivedCurves(const Recording& recording, const ShaftTrack& track,
                             const ShownSpan& span, const CurveOptions& options,
                             ReadingProgress progress)
    : recording_(recording),
      span_(span),
      options_(options),
      track_(track),
      progress_(std::move(progress)) {}

void DerivedCurves::note(const std::vector<std::string>& notes) {
    notes_.insert(notes_.end(), notes.begin(), notes.end());
}

ChannelDescription DerivedCurves::make(const CurveRequest& request, const ChannelStyle& style) {
    switch (request.kind) {
        case CurveKind::ByAngle:
            return byAngle(style);
        case CurveKind::NotFirst:
            return notFirst(style);
        case CurveKind::Average:
            return average(style);
        case CurveKind::Harmonic:
            return harmonic(request, style);
        case CurveKind::SubSync:
            return subSync(style);
        case CurveKind::Reference:
            return reference(request, style);
        case CurveKind::ShaftCenter:
            return shaftCenter(style);
        case CurveKind::Raw:
            break;
    }
    throw std::logic_error("a raw orbit is no derived curve");
}

ChannelDescription DerivedCurves::byAngle(const ChannelStyle& style) const {
    const TimeSpan turns = stretchOf(span_, track_);
    return averageChannel(directOrbit(recording_, track_, turns), recording_, style);
}

ChannelDescription DerivedCurves::notFirst(const ChannelStyle& style) const {
    constexpr std::array First{1.0};
    const TimeSpan turns = stretchOf(span_, track_);
    AveragedOrbit orbit = directOrbit(recording_, track_, turns);
    const Harmonics found = findHarmonics(recording_, track_, First, turns);
    orbit = withoutOrder(std::move(orbit), found.orders.front());
    return averageChannel(orbit, recording_, style);
}

ChannelDescription DerivedCurves::average(const ChannelStyle& style) const {
    const AverageOptions options{.span = stretchOf(span_, track_)};
    return averageChannel(averageOrbit(recording_, track_, options), recording_, style);
}

ChannelDescription DerivedCurves::harmonic(const CurveRequest& request, const ChannelStyle& style) {
    const Harmonics found =
        findHarmonics(recording_, track_, request.orders, stretchOf(span_, track_));
    for (const OrderVectors& order : found.orders)
        if (order.order == 1.0) note(checkPrecession(order, recording_.machine));
    return harmonicChannel(found, recording_, style);
}

ChannelDescription DerivedCurves::subSync(const ChannelStyle& style) {
    SubSyncOrbit orbit =
        subSynchronousOrbit(recording_, track_, {.band = {}, .speed = options_.speed}, progress_);
    note(orbit.notes);
    return subSyncChannel(std::move(orbit), recording_, style);
}

ChannelDescription DerivedCurves::reference(const CurveRequest& request,
                                            const ChannelStyle& style) const {
    const ReferenceOrbit orbit = readReference(request.file, options_.reference, progress_);
    checkComparable(orbit, recording_);
    return referenceChannel(orbit, recording_, style);
}

ChannelDescription DerivedCurves::shaftCenter(const ChannelStyle& style) {
    const ShaftCenterChoice& choice = options_.shaftCenter;
    // With the newest sample itself.
    const double end = span_.time + 1.0 / recording_.sampleRate;
    const double usual = usualInterval(end, recording_.meanSpeed, recording_.sampleRate);
    const ShaftCenterHistory history =
        shaftCenterHistory(recording_, track_,
                           {.span = {0.0, end},
                            .interval = choice.interval.value_or(usual),
                            .rest = choice.rest,
                            .restSpan = choice.restSpan},
                           progress_);
    // The control shows what is older than the newest sample.
    if (history.positions.front().time >= span_.time) {
        throw AnalysisError("the shaft centre needs a stretch of time before the newest sample");
    }
    note(history.notes);
    return shaftCenterChannel(history, recording_, style);
}

}  // namespace Rotavue::Workbench
