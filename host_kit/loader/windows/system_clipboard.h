#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The platform's clipboard as another program would find it.
namespace Rotavue::HostKit::SystemClipboard {

/// A number that changes with every change of what the clipboard holds.
std::uint32_t changes();

/// The text that it holds; nothing where it holds none or cannot be opened.
std::optional<std::wstring> text();

}  // namespace Rotavue::HostKit::SystemClipboard
