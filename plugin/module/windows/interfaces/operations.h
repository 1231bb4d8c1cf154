#pragma once

#include "plugin/module/windows/interfaces/data_operations.h"
#include "plugin/module/windows/interfaces/document_operations.h"
#include "plugin/module/windows/interfaces/drawing_operations.h"
#include "plugin/module/windows/interfaces/panel_operations.h"

namespace Meridax::Host::Binary {

template <class... Interfaces>
struct InterfaceList {
    static constexpr std::size_t Count = sizeof...(Interfaces);
};

/// The interfaces of the host.
using HostInterfaces =
    InterfaceList<IHostApp, IHostData, IHostVisualControl, IHostSlotList, IHostSlot,
                  IHostChannelCollection, IHostGroupCollection, IHostChannelList, IHostChannel,
                  IHostProperties, IHostGroupInfo, IHostAxisList, IHostAxis, IHostCanvas, IHostPen,
                  IHostBrush, IHostFont, IHostPropertyPanel, IHostPropertyPage,
                  IHostPropertyControl, IHostCheckBox, IHostComboBox, IHostFloatEdit,
                  IHostColorEdit, IHostNumberEdit, IHostXmlFactory, IHostXmlDocument, IHostXmlNode>;

static_assert(HostInterfaces::Count == 28);

/// Calls `visit` with each interface of the host, a `std::type_identity`.
template <class Visit>
constexpr void forEachInterface(Visit visit) {
    [&]<class... Interfaces>(InterfaceList<Interfaces...>) {
        (visit(std::type_identity<Interfaces>{}), ...);
    }(HostInterfaces{});
}

}  // namespace Meridax::Host::Binary
