#include "host_kit/memory/memory_clipboard.h"

#include "host_kit/memory/memory_object.h"

namespace Rotavue::HostKit {

void* MemoryClipboard::offer(const Host::Guid& interfaceId) {
    void* found = interfaceAmong<Api::IHostClipboard>(this, interfaceId);
    if (found != nullptr) retain();
    return found;
}

}  // namespace Rotavue::HostKit
