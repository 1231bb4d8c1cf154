#pragma once

#include "plugin/framework/host/data/data_position.h"
#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>
#include <string>

namespace Meridax::Host {

class IHostChannelCollection;
class IHostChannelList;
class IHostGroupCollection;
class IHostSlotList;

/// [host implements] The host's side of one control instance. It comes as argument 1 of message 2
/// and is kept for the life of the control.
class IHostVisualControl : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{D9D2402A-73A9-47C3-A121-951A7EFE4FCF}");

    /// The plain channels assigned to the control. [place 1 | never null in normal use]
    virtual Ref<IHostChannelCollection> getChannels() = 0;

    /// Asks for a redraw. [place 2]
    virtual void invalidate() = 0;

    /// The channel groups assigned to the control. [place 6 | never null in normal use]
    virtual Ref<IHostGroupCollection> getGroups() = 0;

    /// Asks the host to have the channels loaded between two places of the stored data. The control
    /// always sends 0 and true in the middle. The list is borrowed; the host takes what it needs
    /// from it before it returns. [place 7]
    virtual void requestData(DataPosition from, DataPosition to, std::int32_t mode, bool flag,
                             IHostChannelList& channels) = 0;

    /// Tells the host that the control itself changed a setting, which must be shown again.
    /// [place 8]
    virtual void refreshSetup() = 0;

    /// Opens an in-place text editor at a point of the control, in canvas pixels, with `text` in
    /// it. True when the user accepted; `text` then holds the answer. [place 9]
    virtual bool editText(std::int32_t x, std::int32_t y, std::wstring& text) = 0;

    /// The control's assignment slots. [place 10 | never null in normal use]
    virtual Ref<IHostSlotList> getSlots() = 0;

protected:
    ~IHostVisualControl() = default;
};

}  // namespace Meridax::Host
