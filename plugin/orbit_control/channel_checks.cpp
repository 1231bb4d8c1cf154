#include "plugin/framework/host/data/host_properties.h"
#include "plugin/framework/host/data/host_slots.h"
#include "plugin/orbit_control/assignment.h"
#include "plugin/orbit_control/orbit_kind.h"
#include "plugin/orbit_control/rotavue_visual_control.h"
#include "plugin/orbit_control/setting_values.h"
#include "plugin/orbit_control/text_property.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::int32_t GroupSlot = 1;

}  // namespace

bool RotavueVisualControl::acceptsChannel(Host::Ref<Host::IHostChannel> channel) {
    const std::wstring type =
        readTextProperty(channel->getProperties(), L"OrbitAnalysisChannelType");
    return type == L"ShaftCenter" || type == L"Orbit";
}

bool RotavueVisualControl::acceptsGroup(Host::Ref<Host::IHostObject> group) {
    const auto properties = group.offered<Host::IHostGroupInfo>()->getProperties();
    return orbitKindOf(readTextProperty(properties, L"OrbitType")) == OrbitKind::Raw;
}

void RotavueVisualControl::onChannelsChanged(std::int32_t slotIndex) {
    if (hostControl->getSlots()->getSlot(slotIndex)->getKind() != GroupSlot) return;
    tachoMissing_ = false;
    bool movedToTime = false;
    forEachGroup(hostControl, [&](Host::IHostChannelList& group) {
        if (hasTachoChannel(group)) return;
        tachoMissing_ = true;
        if (graph_.historyType() != HistoryType::Revolutions) return;
        graph_.setHistoryType(HistoryType::Time);
        movedToTime = true;
    });
    if (movedToTime) hostControl->refreshSetup();
}

}  // namespace Meridax::VisualControls::Rotavue
