#include "plugin/orbit_control/assignment.h"
#include "plugin/orbit_control/rotavue_visual_control.h"

#include <utility>

namespace Meridax::VisualControls::Rotavue {

bool RotavueVisualControl::checkBearingConfig() {
    pointAllowance_.renew();
    turnAllowance_.renew();
    stampAllowance_.renew();
    textAllowance_.renew();
    bearingConfigs_.clear();
    forEachChannel(hostControl,
                   [&](Host::IHostChannel& channel) { noteBearing(readBearingConfig(channel)); });
    forEachGroup(hostControl, [&](Host::IHostChannelList& group) {
        if (!isOrbitGroupUsable(group)) return;
        noteBearing(readBearingConfig(*group.getItem(0)));
    });
    return bearingConfigs_.size() < 2;
}

// The first, and the first that differs from it: one says as much as all that follow, each of which
// may have a text of any length.
void RotavueVisualControl::noteBearing(BearingConfig config) {
    if (bearingConfigs_.size() == 2) return;
    if (bearingConfigs_.empty() || config != bearingConfigs_.front())
        bearingConfigs_.push_back(std::move(config));
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
