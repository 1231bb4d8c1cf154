#pragma once

#include "workbench/paint/picture_studio.h"

#include <optional>
#include <string>

namespace Rotavue::Cli {

/// The format that a file's name ends with, or the one that is named. Raises `UsageError` for
/// another one.
Workbench::PictureFormat pictureFormatOf(const std::string& file,
                                         const std::optional<std::string>& named = std::nullopt);

}  // namespace Rotavue::Cli
