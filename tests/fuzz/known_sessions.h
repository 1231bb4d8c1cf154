#pragma once

#include "host_kit/session/session.h"

#include <deque>

namespace Rotavue::Fuzz {

/// The sessions of the tests, in the order of their files' names.
const std::deque<HostKit::Session>& knownSessions();

}  // namespace Rotavue::Fuzz
