#pragma once

#include "host_kit/memory/call_value.h"

#include <string_view>
#include <utility>
#include <vector>

namespace Rotavue::HostKit {

/// The members of a JSON object in their order.
using LogMembers = std::vector<std::pair<std::string_view, CallValue>>;

/// What a message threw, as the log tells it. Called while the exception is being handled; nothing
/// of the exception is kept, so that its module may go.
LogMembers currentFailure();

}  // namespace Rotavue::HostKit
