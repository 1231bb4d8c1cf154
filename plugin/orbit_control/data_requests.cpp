#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/orbit_control/assignment.h"
#include "plugin/orbit_control/data_window.h"
#include "plugin/orbit_control/orbit_kind.h"
#include "plugin/orbit_control/rotavue_visual_control.h"
#include "plugin/orbit_control/setting_values.h"

namespace Meridax::VisualControls::Rotavue {

// One request after the other goes out with the same list: filled before it, emptied after it. A
// request that fails leaves the list as it is, but not for ever: a host that refuses all of them
// doesn't fill it without end.
void RotavueVisualControl::requestData(Host::DataPosition& first, Host::DataPosition& second) {
    if (!dataRequestList_) dataRequestList_ = hostApp->createChannelList();
    if (unsent_ > MostAssigned) clearRequest();
    const DataWindow window = DataWindow::read(hostApp);
    forEachChannel(hostControl, [&](Host::IHostChannel& channel) {
        const OrbitKind kind = readOrbitType(channel);
        if (kind == OrbitKind::Raw) return;
        if (kind == OrbitKind::ShaftCenter) return requestWholeRange(channel);
        requestChannel(channel, window);
    });
    forEachGroup(hostControl, [&](Host::IHostChannelList& group) {
        if (isOrbitGroupUsable(group)) requestGroup(group, window);
    });
    first = {};
    second = {};
}

void RotavueVisualControl::requestWholeRange(Host::IHostChannel& channel) {
    addToRequest(channel);
    const Host::DataPosition from = hostApp->getData()->getFirstPosition();
    const Host::DataPosition to = hostApp->getData()->getLastPosition();
    sendRequest(from, to);
}

// Two samples of the channel's own rate.
void RotavueVisualControl::requestChannel(Host::IHostChannel& channel, DataWindow window) {
    const double rate = channel.getSampleRate();
    if (rate == 0.0) return;
    window.cutSeconds(2.0 / rate);
    addToRequest(channel);
    sendRequest(window.from, window.to);
}

void RotavueVisualControl::requestGroup(Host::IHostChannelList& group, DataWindow window) {
    const std::optional<double> span = requestedSpan(group);
    if (!span) return;
    window.cutSeconds(*span);
    const std::int32_t count = std::min(group.getCount(), MostAssigned);
    for (std::int32_t i = 0; i < count; ++i)
        addToRequest(*group.getItem(i));
    sendRequest(window.from, window.to);
}

// By time twice what is shown, for the cursor stands in its middle; by revolutions most of the
// buffer. Nothing for a channel without a rate.
std::optional<double> RotavueVisualControl::requestedSpan(Host::IHostChannelList& group) {
    if (graph_.historyType() == HistoryType::Time) return 2 * displayTime_ / 1000;
    const Host::Ref<Host::IHostChannel> channel = group.getItem(0);
    const double rate = channel->getSampleRate();
    if (rate == 0.0) return std::nullopt;
    return channel->getBufferSize() / rate * 0.8;
}

void RotavueVisualControl::sendRequest(Host::DataPosition from, Host::DataPosition to) {
    hostControl->requestData(from, to, 0, true, *dataRequestList_);
    clearRequest();
}

void RotavueVisualControl::addToRequest(Host::IHostChannel& channel) {
    dataRequestList_->add(channel);
    ++unsent_;
}

void RotavueVisualControl::clearRequest() {
    dataRequestList_->clear();
    unsent_ = 0;
}

}  // namespace Meridax::VisualControls::Rotavue
