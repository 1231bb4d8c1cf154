#pragma once

#include "plugin/framework/platform.h"

#include <string_view>

namespace Meridax::VisualControls::Api {

/// Puts the text on the clipboard as UTF-16 with a terminator, up to its first zero character; a
/// platform whose wide texts are UTF-16 gets them unit by unit, well-formed or not. The steps come
/// in one fixed order, from `open` to `free`, and no result is looked at: where there is no memory
/// the steps are made all the same, without the text.
void copyToClipboard(SystemClipboard& clipboard, std::wstring_view text);

}  // namespace Meridax::VisualControls::Api
