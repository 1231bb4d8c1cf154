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

/// The key of a class, and the one below it that names the class's file, whichever root.
std::wstring classKeyOf(const std::wstring& classId);
std::wstring moduleKeyOf(const std::wstring& classId);

/// The identifier, as text in braces, of the class that the control announces below a root.
std::optional<std::wstring> announcedClass(HKEY root);

/// The one that it announces to this user: in the user's own half, else in the machine's.
std::optional<std::wstring> registeredClass();

}  // namespace Rotavue::HostKit
