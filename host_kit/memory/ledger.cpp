#include "host_kit/memory/ledger.h"

#include "host_kit/memory/memory_object.h"

#include <algorithm>

namespace Rotavue::HostKit {

std::int64_t Ledger::references() const {
    std::int64_t sum = 0;
    for (const MemoryObject* object : objects_)
        sum += object->references();
    return sum;
}

std::vector<std::string> Ledger::held() const {
    std::vector<std::string> result;
    for (const MemoryObject* object : objects_) {
        if (object->references() == 0) continue;
        result.push_back(object->name() + " x " + std::to_string(object->references()));
    }
    std::sort(result.begin(), result.end());
    return result;
}

}  // namespace Rotavue::HostKit
