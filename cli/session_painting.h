#pragma once

#include "cli/session_picture.h"

#include <memory>
#include <string>

namespace Rotavue::Cli {

/// A picture that the studio paints. Raises `UsageError` for a name of no known format and
/// `OutputError` for a file that cannot be made.
std::unique_ptr<SessionPicture> openSessionPainting(const std::string& file, bool replace);

}  // namespace Rotavue::Cli
