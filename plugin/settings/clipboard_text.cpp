#include "plugin/framework/host/host_text.h"
#include "plugin/orbit_control/assignment.h"
#include "plugin/orbit_control/rotavue_visual_control.h"
#include "plugin/settings/clipboard_writer.h"

namespace Meridax::VisualControls::Rotavue {

bool RotavueVisualControl::canCopyToClipboard() {
    return true;
}

std::wstring RotavueVisualControl::clipboardText() {
    return Host::madeText([this]() -> std::wstring {
        if (!checkBearingConfig()) return {};
        ClipboardWriter writer(*this);
        forEachGroup(hostControl, [&](Host::IHostChannelList& group) {
            if (isOrbitGroupUsable(group)) writer.addGroup(group);
        });
        forEachChannel(hostControl, [&](auto& channel) { writer.addChannel(channel); });
        return writer.takeText();
    });
}

}  // namespace Meridax::VisualControls::Rotavue
