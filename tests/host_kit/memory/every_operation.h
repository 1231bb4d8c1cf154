#pragma once

#include "host_kit/memory/memory_host.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Rotavue::HostKit {

/// A call of one operation of a host, and the name of the operation.
struct OperationCall {
    std::string name;
    std::function<void(MemoryHost&)> call;
};

/// One call of every operation, in the order of `OperationTable`. Each makes what it needs first,
/// so that it makes other calls as well.
const std::vector<OperationCall>& everyOperation();

/// Describes a host on which every one of these calls gives something.
void describeEverything(HostDescription& description);

}  // namespace Rotavue::HostKit
