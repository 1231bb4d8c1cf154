#pragma once

#include "host_kit/loader/platform.h"
#include "plugin/module/windows/platform_headers.h"

#include <filesystem>
#include <optional>
#include <string>

namespace Rotavue::HostKit {

/// A text of the registry below one of its roots; nothing where there is none.
std::optional<std::wstring> registryText(HKEY root, const std::wstring& key,
                                         const std::wstring& name);

/// The key below which the file of a class is named, whichever root.
std::wstring moduleKeyOf(const std::wstring& classId);

/// The identifier, as text in braces, of the class that the control announces in its key, the
/// user's own before the machine's; nothing where it announces none.
std::optional<std::wstring> registeredClass();

}  // namespace Rotavue::HostKit
