#include "plugin/orbit_control/assignment.h"
#include "plugin/orbit_control/rotavue_visual_control.h"

#include <algorithm>
#include <functional>

namespace Meridax::VisualControls::Rotavue {

bool RotavueVisualControl::checkBearingConfig() {
    pointAllowance_.renew();
    stampAllowance_.renew();
    bearingConfigs_.clear();
    forEachChannel(hostControl, [&](Host::IHostChannel& channel) {
        bearingConfigs_.push_back(readBearingConfig(channel));
    });
    forEachGroup(hostControl, [&](Host::IHostChannelList& group) {
        if (!isOrbitGroupUsable(group)) return;
        bearingConfigs_.push_back(readBearingConfig(*group.getItem(0)));
    });
    return std::ranges::adjacent_find(bearingConfigs_, std::ranges::not_equal_to{}) ==
           bearingConfigs_.end();
}

void RotavueVisualControl::applyBearingConfig(Host::IHostChannel& channel) {
    bearing_ = readBearingConfig(channel);
    graph_.setXAngle(bearing_.xAngle);
    graph_.setYAngle(bearing_.yAngle);
    graph_.setTachoAngle(bearing_.tachoAngle);
    graph_.setClearanceRadiusX(bearing_.clearanceRadiusX);
    graph_.setClearanceRadiusY(bearing_.clearanceRadiusY);
    graph_.setRotationDirection(bearing_.directionText == L"CCW" ? 0 : 1);
}

}  // namespace Meridax::VisualControls::Rotavue
