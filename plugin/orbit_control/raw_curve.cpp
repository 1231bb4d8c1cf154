#include "plugin/framework/host/data/host_app.h"
#include "plugin/orbit_control/assignment.h"
#include "plugin/orbit_control/channel_info.h"
#include "plugin/orbit_control/channel_layout.h"
#include "plugin/orbit_control/rotavue_visual_control.h"

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {

OrbitCurve RotavueVisualControl::readRawCurve(Host::IHostChannelList& group) {
    const Host::Ref<Host::IHostChannel> channel = group.getItem(0);
    applyBearingConfig(*channel);
    OrbitCurve curve;
    Extents extents;
    if (channel->getStorageKind() != StoredNowhere || hostApp->isAcquiring()) {
        const Host::Ref<Host::IHostChannel> tacho = tachoChannelOf(group);
        extents = readPoints(*channel, findHistoryWindow(tacho.get()), curve.points);
    }
    foldExtents(extents);
    curve.info = readInfo(*channel);
    curve.kind = OrbitKind::Raw;
    return curve;
}

// Names and units together take no more than the frame's allowance: a long one costs as much again
// for each time that its channel is assigned.
ChannelInfo RotavueVisualControl::readInfo(Host::IHostChannel& channel) {
    ChannelInfo info = fillChannelInfo(channel);
    for (std::wstring* text : {&info.unit, &info.name}) {
        const auto length = static_cast<std::int64_t>(text->size());
        const std::int32_t kept = textAllowance_.take(length);
        // A new text: one that is only shortened keeps its memory.
        if (kept < length) std::wstring(*text, 0, static_cast<std::size_t>(kept)).swap(*text);
    }
    return info;
}

Extents RotavueVisualControl::readPoints(Host::IHostChannel& channel, HistoryWindow window,
                                         std::vector<Point>& points) {
    const SensorFrame frame = sensorFrame();
    const std::int32_t count = pointAllowance_.take(std::int64_t{window.end} - window.first);
    points.reserve(static_cast<std::size_t>(count));
    Extents extents;
    for (std::int32_t i = window.first; i < window.first + count; ++i) {
        const double a = getSample(channel, i, 0, Component::X);
        const double b = getSample(channel, i, 0, Component::Y);
        const Point point = frame.turned(a, b);
        extents.takeIn(point.x, point.y);
        points.push_back(point);
    }
    return extents;
}

void RotavueVisualControl::foldExtents(Extents extents) {
    const double radiusX = graph_.clearanceRadiusX();
    const double radiusY = graph_.clearanceRadiusY();
    if (graph_.drawClearance() && radiusX >= 0.0 && radiusY >= 0.0) {
        const double reach = std::max(radiusX, radiusY);
        extents.takeIn(reach, reach);
        extents.takeIn(-reach, -reach);
    }
    dataExtents_.takeIn(extents);
}

}  // namespace Meridax::VisualControls::Rotavue
