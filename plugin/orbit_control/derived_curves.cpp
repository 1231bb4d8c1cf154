#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/orbit_control/channel_info.h"
#include "plugin/orbit_control/channel_layout.h"
#include "plugin/orbit_control/orbit_kind.h"
#include "plugin/orbit_control/rotavue_visual_control.h"
#include "plugin/orbit_control/setting_values.h"
#include "plugin/orbit_graph/phasor.h"

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {
namespace {

template <class Entries>
Extents extentsOf(const Entries& entries) {
    Extents extents;
    for (const auto& entry : entries)
        extents.takeIn(entry.x, entry.y);
    return extents;
}

// A single position has no span of its own.
Extents extentsOfSamples(const std::vector<CurveSample>& samples) {
    Extents extents = extentsOf(samples);
    if (samples.size() == 1) extents.widen(0.1);
    return extents;
}

// `atY` belongs to the sensor at the Y angle, `atX` to the one at the X angle.
void takeInEllipse(Extents& extents, const SensorFrame& frame, const Phasor& atY,
                   const Phasor& atX) {
    for (int degree = 0; degree < EllipseSteps; ++degree) {
        const double u = atY.at(radians(degree));
        const double v = atX.at(radians(degree));
        extents.takeIn(u * frame.ySin + v * frame.xSin, u * frame.yCos + v * frame.xCos);
    }
}

Extents extentsOfPhasors(const std::vector<Point>& points, const SensorFrame& frame) {
    Extents extents;
    for (std::size_t k = 0; k + 1 < points.size(); k += 2)
        takeInEllipse(extents, frame, Phasor(points[k]), Phasor(points[k + 1]));
    return extents;
}

}  // namespace

OrbitCurve RotavueVisualControl::readSubSyncCurve(Host::IHostChannel& channel) {
    applyBearingConfig(channel);
    const std::int64_t held = std::int64_t{channel.getSampleCount()} - 1;
    const std::int64_t shown = sampleCountForTime(graph_.historyType() != HistoryType::Time);
    const std::int64_t count = std::max<std::int64_t>(std::min(held, shown), 0);
    OrbitCurve curve;
    foldExtents(readPoints(channel, {0, static_cast<std::int32_t>(count)}, curve.points));
    curve.info = readInfo(channel);
    curve.kind = OrbitKind::Raw;
    return curve;
}

Point RotavueVisualControl::readArrayPoint(Host::IHostChannel& channel, const SensorFrame& frame,
                                           std::int32_t element) {
    const double a = getLatestArrayValue(channel, element, Component::X);
    const double b = getLatestArrayValue(channel, element, Component::Y);
    return frame.turned(a, b);
}

OrbitCurve RotavueVisualControl::readReferenceCurve(Host::IHostChannel& channel) {
    const SensorFrame frame = sensorFrame();
    const std::int32_t count = pointAllowance_.take(channel.getArraySize());
    OrbitCurve curve;
    curve.points.reserve(static_cast<std::size_t>(count));
    for (std::int32_t k = 0; k < count; ++k)
        curve.points.push_back(readArrayPoint(channel, frame, k));
    foldExtents(extentsOf(curve.points));
    curve.info = readInfo(channel);
    curve.kind = OrbitKind::Reference;
    return curve;
}

OrbitCurve RotavueVisualControl::readAverageCurve(Host::IHostChannel& channel) {
    const SensorFrame frame = sensorFrame();
    const std::int32_t count = pointAllowance_.take(channel.getArraySize());
    OrbitCurve curve;
    curve.samples.reserve(static_cast<std::size_t>(count));
    for (std::int32_t k = 0; k < count; ++k) {
        const Point point = readArrayPoint(channel, frame, k);
        const ArrayAxis axis = readArrayAxis(channel);
        curve.samples.push_back({point.x, point.y, k * axis.step + axis.start});
    }
    foldExtents(extentsOfSamples(curve.samples));
    curve.info = readInfo(channel);
    curve.kind = OrbitKind::Average;
    return curve;
}

OrbitCurve RotavueVisualControl::readHarmonicCurve(Host::IHostChannel& channel) {
    OrbitCurve curve;
    readPhasors(channel, curve.points);
    foldExtents(extentsOfPhasors(curve.points, sensorFrame()));
    curve.info = readInfo(channel);
    curve.kind = OrbitKind::Harmonic;
    return curve;
}

// One pair of points per harmonic order: the sensor at the Y angle, then the one at the X angle.
// The last entry of an odd count is never written.
void RotavueVisualControl::readPhasors(Host::IHostChannel& channel, std::vector<Point>& points) {
    const double factor = amplitudeFactor(readOrbitAmplitude(channel));
    const std::int32_t size = std::max(channel.getArraySize(), 0);
    const std::int32_t half = size / 2;
    const std::int32_t pairs =
        pointAllowance_.take(std::int64_t{half} * EllipseSteps) / EllipseSteps;
    const auto phasor = [&](std::int32_t element) -> Point {
        const double real = getLatestArrayValue(channel, element, Component::X) * factor;
        const double imaginary = getLatestArrayValue(channel, element, Component::Y) * factor;
        return {real, imaginary};
    };
    points.reserve(2 * static_cast<std::size_t>(pairs) + 1);
    for (std::int32_t k = 0; k < pairs; ++k) {
        points.push_back(phasor(k));
        points.push_back(phasor(k + half));
    }
    if (size % 2 != 0) points.emplace_back();
}

OrbitCurve RotavueVisualControl::readShaftCenterCurve(Host::IHostChannel& channel) {
    const SensorFrame frame = sensorFrame();
    const std::int32_t count = pointAllowance_.take(shaftCenterCount(channel));
    sampleCursor = -1;
    OrbitCurve curve;
    curve.samples.resize(static_cast<std::size_t>(count));
    for (std::int32_t back = count - 1; back >= 0; --back)
        curve.samples[static_cast<std::size_t>(back)] = readShaftCenter(channel, frame, back);
    foldExtents(extentsOfSamples(curve.samples));
    curve.info = readInfo(channel);
    curve.kind = OrbitKind::ShaftCenter;
    return curve;
}

std::int32_t RotavueVisualControl::shaftCenterCount(Host::IHostChannel& channel) {
    const bool whole = hostApp->getData()->isWholeDataset();
    if (showOnlyLastPosition_) return std::min(channel.getSampleCount(), 1);
    return whole ? channel.getSampleCount() : findLatestSampleBefore(channel) + 1;
}

CurveSample RotavueVisualControl::readShaftCenter(Host::IHostChannel& channel,
                                                  const SensorFrame& frame, std::int32_t back) {
    namespace Element = ShaftCenterElement;
    const std::int32_t third =
        graph_.displayType() != DisplayType::Rpm ? Element::Time : Element::Speed;
    const double atY = getSample(channel, back, Element::GapAtYAngle, Component::Plain);
    const double atX = getSample(channel, back, Element::GapAtXAngle, Component::Plain);
    const double value = getSample(channel, back, third, Component::Plain);
    const Point point = frame.turned(atX, atY);
    return {point.x, point.y, value};
}

}  // namespace Meridax::VisualControls::Rotavue
