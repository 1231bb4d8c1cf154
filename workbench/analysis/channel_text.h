#pragma once

#include <string>

namespace Rotavue::Workbench {

/// A UTF-8 text as a host channel gives it. Bytes that are no UTF-8, as in a name from a file of
/// another encoding, become "?".
std::wstring channelText(const std::string& text);

}  // namespace Rotavue::Workbench
