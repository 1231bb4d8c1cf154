#pragma once

#include <filesystem>
#include <string_view>

namespace Meridax::VisualControls::Rotavue {

/// Replaces a file by another content, or makes it. The new content is written beside and renamed,
/// and is on the disk when this answers true: a reader sees the old content or the new one, never a
/// part. An existing file keeps its permissions. The caller keeps other writers away.
bool replaceFile(const std::filesystem::path& path, std::string_view content);

}  // namespace Meridax::VisualControls::Rotavue
