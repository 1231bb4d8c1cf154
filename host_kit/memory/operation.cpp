#include "host_kit/memory/operation.h"

#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_axes.h"
#include "plugin/framework/host/data/host_channel.h"
#include "plugin/framework/host/data/host_collections.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/framework/host/data/host_properties.h"
#include "plugin/framework/host/data/host_slots.h"
#include "plugin/framework/host/data/host_visual_control.h"
#include "plugin/framework/host/document/host_xml.h"
#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/framework/host/panel/host_property_panel.h"
#include "plugin/framework/host/panel/host_widgets.h"

namespace Rotavue::HostKit {

namespace {

struct InterfaceRow {
    std::string_view name;
    Host::Guid identifier;
};

constexpr auto InterfaceTable = std::to_array<InterfaceRow>({
    {"IHostApp", Host::IHostApp::Identifier},
    {"IHostData", Host::IHostData::Identifier},
    {"IHostVisualControl", Host::IHostVisualControl::Identifier},
    {"IHostSlotList", Host::IHostSlotList::Identifier},
    {"IHostSlot", Host::IHostSlot::Identifier},
    {"IHostChannelCollection", Host::IHostChannelCollection::Identifier},
    {"IHostGroupCollection", Host::IHostGroupCollection::Identifier},
    {"IHostChannelList", Host::IHostChannelList::Identifier},
    {"IHostChannel", Host::IHostChannel::Identifier},
    {"IHostProperties", Host::IHostProperties::Identifier},
    {"IHostGroupInfo", Host::IHostGroupInfo::Identifier},
    {"IHostAxisList", Host::IHostAxisList::Identifier},
    {"IHostAxis", Host::IHostAxis::Identifier},
    {"IHostCanvas", Host::IHostCanvas::Identifier},
    {"IHostPen", Host::IHostPen::Identifier},
    {"IHostBrush", Host::IHostBrush::Identifier},
    {"IHostFont", Host::IHostFont::Identifier},
    {"IHostPropertyPanel", Host::IHostPropertyPanel::Identifier},
    {"IHostPropertyPage", Host::IHostPropertyPage::Identifier},
    {"IHostPropertyControl", Host::IHostPropertyControl::Identifier},
    {"IHostCheckBox", Host::IHostCheckBox::Identifier},
    {"IHostComboBox", Host::IHostComboBox::Identifier},
    {"IHostFloatEdit", Host::IHostFloatEdit::Identifier},
    {"IHostColorEdit", Host::IHostColorEdit::Identifier},
    {"IHostNumberEdit", Host::IHostNumberEdit::Identifier},
    {"IHostXmlFactory", Host::IHostXmlFactory::Identifier},
    {"IHostXmlDocument", Host::IHostXmlDocument::Identifier},
    {"IHostXmlNode", Host::IHostXmlNode::Identifier},
});

static_assert(InterfaceTable.size() == 28);

}  // namespace

Host::Guid interfaceOf(Operation operation) {
    const std::string_view name = interfaceNameOf(operation);
    for (const InterfaceRow& row : InterfaceTable) {
        if (row.name == name) return row.identifier;
    }
    return {};
}

std::optional<std::string_view> interfaceName(const Host::Guid& identifier) {
    for (const InterfaceRow& row : InterfaceTable) {
        if (row.identifier == identifier) return row.name;
    }
    return std::nullopt;
}

CallGroups groups(std::initializer_list<CallGroup> members) {
    CallGroups result;
    for (const CallGroup group : members)
        result.set(static_cast<std::size_t>(group));
    return result;
}

CallGroups allGroups() {
    return CallGroups{}.set();
}

CallGroups defaultGroups() {
    return groups({CallGroup::Draw, CallGroup::Panel, CallGroup::Setup, CallGroup::Control});
}

}  // namespace Rotavue::HostKit
