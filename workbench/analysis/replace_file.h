#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace Rotavue::Workbench {

/// Puts a file with that content in its place: it is written beside under another name and renamed,
/// so that a reader meets the old content or the new one, never half of it. Both are on the disk
/// when this returns: so it is after a power cut, too. On failure the old file
/// is as it was, nothing else is left behind, and the reason is returned.
std::error_code replaceFile(const std::filesystem::path& file, std::string_view content);

}  // namespace Rotavue::Workbench
