#include "workbench/analysis/channel_text.h"

#include "host_kit/memory/utf8.h"
#include "plugin/framework/unicode.h"

namespace Rotavue::Workbench {

std::wstring channelText(const std::string& text) {
    return Meridax::VisualControls::Api::wideFromUtf8(HostKit::wellFormed(text));
}

}  // namespace Rotavue::Workbench
