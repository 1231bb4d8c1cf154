#pragma once

#include "host_kit/session/field.h"
#include "host_kit/session/host_reader.h"
#include "host_kit/session/session.h"

namespace Rotavue::HostKit {

/// Reads one step against the description as it is when the step's turn comes; a patch is merged
/// into it. Raises `SessionError`.
Step readStep(const Field& step, HostReader& reader);

}  // namespace Rotavue::HostKit
