#pragma once

#include "plugin/orbit_control/rotavue_visual_control.h"

#include <cstdint>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// A test's key to the control: its state by name, and the steps of which a draw is made.
struct RotavueVisualControlAccess {
    explicit RotavueVisualControlAccess(RotavueVisualControl& opened)
        : control(opened),
          graph(opened.graph_),
          propertyRoot(opened.propertyRoot_),
          leftButtonHeld(opened.leftButtonHeld_),
          viewZoom(opened.viewZoom_),
          viewRotation(opened.viewRotation_),
          rotationStep(opened.rotationStep_),
          dataExtents(opened.dataExtents_),
          displayTime(opened.displayTime_),
          revolutions(opened.revolutions_),
          bearing(opened.bearing_),
          showOnlyLastPosition(opened.showOnlyLastPosition_),
          tachoMissing(opened.tachoMissing_),
          lastPointer(opened.lastPointer_),
          dataRequestList(opened.dataRequestList_),
          bearingConfigs(opened.bearingConfigs_),
          pointAllowance(opened.pointAllowance_),
          turnAllowance(opened.turnAllowance_),
          stampAllowance(opened.stampAllowance_) {}

    bool checkBearingConfig() { return control.checkBearingConfig(); }
    void applyBearingConfig(Host::IHostChannel& channel) { control.applyBearingConfig(channel); }

    double getSample(Host::IHostChannel& channel, std::int32_t back, std::int32_t element,
                     std::int32_t component) {
        return control.getSample(channel, back, element, component);
    }

    double getLatestArrayValue(Host::IHostChannel& channel, std::int32_t element,
                               std::int32_t component) {
        return control.getLatestArrayValue(channel, element, component);
    }

    std::int32_t findLatestSampleBefore(Host::IHostChannel& channel) {
        return control.findLatestSampleBefore(channel);
    }

    std::int32_t sampleCountForTime(bool shortSpan) {
        return control.sampleCountForTime(shortSpan);
    }

    HistoryWindow findHistoryWindow(Host::IHostChannel* tacho) {
        return control.findHistoryWindow(tacho);
    }

    OrbitCurve readRawCurve(Host::IHostChannelList& group) { return control.readRawCurve(group); }

    OrbitCurve readSubSyncCurve(Host::IHostChannel& channel) {
        return control.readSubSyncCurve(channel);
    }

    OrbitCurve readReferenceCurve(Host::IHostChannel& channel) {
        return control.readReferenceCurve(channel);
    }

    OrbitCurve readAverageCurve(Host::IHostChannel& channel) {
        return control.readAverageCurve(channel);
    }

    OrbitCurve readHarmonicCurve(Host::IHostChannel& channel) {
        return control.readHarmonicCurve(channel);
    }

    OrbitCurve readShaftCenterCurve(Host::IHostChannel& channel) {
        return control.readShaftCenterCurve(channel);
    }

    void foldExtents(const Extents& extents) { control.foldExtents(extents); }
    void dragView(const Point& pointer) { control.dragView(pointer); }
    void turnView(bool direction) { control.turnView(direction); }
    void zoomView(bool direction) { control.zoomView(direction); }

    RotavueVisualControl& control;
    OrbitGraph& graph;
    Host::Ref<Host::IHostPropertyPage>& propertyRoot;
    bool& leftButtonHeld;
    double& viewZoom;
    double& viewRotation;
    double& rotationStep;
    Extents& dataExtents;
    double& displayTime;
    std::int32_t& revolutions;
    BearingConfig& bearing;
    bool& showOnlyLastPosition;
    bool& tachoMissing;
    Point& lastPointer;
    Host::Ref<Host::IHostChannelList>& dataRequestList;
    std::vector<BearingConfig>& bearingConfigs;
    ReadAllowance& pointAllowance;
    ReadAllowance& turnAllowance;
    ReadAllowance& stampAllowance;
};

}  // namespace Meridax::VisualControls::Rotavue
