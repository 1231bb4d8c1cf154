#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/orbit_control/assignment.h"
#include "plugin/orbit_control/channel_layout.h"
#include "plugin/orbit_control/orbit_kind.h"
#include "plugin/orbit_control/rotavue_visual_control.h"

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {
namespace {

using ControlRef = Host::Ref<Host::IHostVisualControl>;

// An empty unit takes the whole away; units that differ give a question mark.
std::wstring commonUnit(const std::vector<OrbitCurve>& curves) {
    const auto isEmpty = [](const OrbitCurve& curve) { return curve.info.unit.empty(); };
    if (curves.empty() || std::ranges::any_of(curves, isEmpty)) return {};
    const std::wstring& unit = curves.front().info.unit;
    const auto isSame = [&](const OrbitCurve& curve) { return curve.info.unit == unit; };
    return std::ranges::all_of(curves, isSame) ? unit : L"?";
}

void drawBearingMismatch(OrbitGraph& graph, const CanvasRef& canvas) {
    graph.drawError(canvas, L"Bearing configuration between channels does not match.");
    graph.drawFrame(canvas);
    graph.drawScaleLabels(canvas);
}

void drawGroupFault(OrbitGraph& graph, const CanvasRef& canvas) {
    graph.drawError(canvas, L"Raw orbit group does not contain the correct amount of channels.");
}

bool isAnythingAssigned(const ControlRef& control) {
    return control->getChannels()->getCount() > 0 || control->getGroups()->getCount() > 0;
}

void drawMachine(OrbitGraph& graph, const CanvasRef& canvas) {
    graph.drawClearanceEllipse(canvas);
    graph.drawSensorBadges(canvas);
}

void drawLegend(OrbitGraph& graph, const CanvasRef& canvas, const std::vector<OrbitCurve>& curves) {
    if (graph.singleAxis()) {
        graph.drawLegendRow(canvas, curves);
    } else {
        graph.drawLegendLines(canvas, curves);
    }
}

}  // namespace

void RotavueVisualControl::draw(const Api::DrawContext& context) {
    const CanvasRef& canvas = context.canvas;
    graph_.setRotation(viewRotation_);
    layoutGraph(context);
    graph_.setThemeColors(context.backgroundColor, context.gridColor, context.textColor,
                          context.axisColor, context.borderColor);
    if (!checkBearingConfig()) return drawBearingMismatch(graph_, canvas);

    std::vector<OrbitCurve> curves;
    dataExtents_ = {};
    if (!readGroups(curves)) drawGroupFault(graph_, canvas);
    readChannels(curves);
    if (dataExtents_.isUnset()) dataExtents_ = Extents::ofOrigin();
    graph_.autoScale(dataExtents_.range());

    graph_.layoutLimitLabels(canvas);
    graph_.drawFrame(canvas);
    const std::wstring unit = commonUnit(curves);
    graph_.layoutAxisStrips(canvas);
    graph_.drawScaleLabels(canvas);
    graph_.drawAxisTitles(canvas, unit);
    graph_.drawTraces(canvas, curves);
    if (!curves.empty() && graph_.pointerInside()) graph_.drawReadout(canvas);
    if (isAnythingAssigned(hostControl)) drawMachine(graph_, canvas);
    drawLegend(graph_, canvas, curves);
    canvas->GetFont()->SetStyle(0);
}

// Width and height stand in the places of right and bottom, which is the same for an area that
// starts at 0, 0; the graph's vertical flip makes the same assumption.
void RotavueVisualControl::layoutGraph(const Api::DrawContext& context) {
    const std::int32_t channelCount = hostControl->getChannels()->getCount();
    const Rectangle area{static_cast<double>(context.x), static_cast<double>(context.y),
                         static_cast<double>(context.width), static_cast<double>(context.height)};
    graph_.layout(context.canvas, area, channelCount);
}

bool RotavueVisualControl::readGroups(std::vector<OrbitCurve>& curves) {
    bool allUsable = true;
    forEachGroup(hostControl, [&](Host::IHostChannelList& group) {
        if (isOrbitGroupUsable(group)) {
            curves.push_back(readRawCurve(group));
        } else {
            allUsable = false;
        }
    });
    return allUsable;
}

void RotavueVisualControl::readChannels(std::vector<OrbitCurve>& curves) {
    std::int32_t decimals = 0;
    forEachChannel(hostControl, [&](Host::IHostChannel& channel) {
        decimals = std::max(decimals, channel.getDecimals());
        applyBearingConfig(channel);
        if (!hostApp->isAcquiring() && channel.getStorageKind() == StoredNowhere) return;
        readChannel(channel, curves);
    });
    graph_.setDecimals(decimals);
}

void RotavueVisualControl::readChannel(Host::IHostChannel& channel,
                                       std::vector<OrbitCurve>& curves) {
    switch (readOrbitType(channel)) {
        case OrbitKind::Raw:
            return;
        case OrbitKind::Average:
            return curves.push_back(readAverageCurve(channel));
        case OrbitKind::Harmonic:
            return curves.push_back(readHarmonicCurve(channel));
        case OrbitKind::ShaftCenter:
            return curves.push_back(readShaftCenterCurve(channel));
        case OrbitKind::Reference:
            return curves.push_back(readReferenceCurve(channel));
        case OrbitKind::SubSync:
            return curves.push_back(readSubSyncCurve(channel));
    }
}

}  // namespace Meridax::VisualControls::Rotavue
