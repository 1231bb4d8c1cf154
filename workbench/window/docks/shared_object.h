#pragma once

#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/host_object.h"

#include <cstdint>

namespace Rotavue::Workbench {

namespace Host = Meridax::Host;

/// A host object that goes with its last reference, whoever holds it: made with `new`, and taken
/// into a `Ref` at once.
template <class... Interfaces>
class SharedObject : public Interfaces... {
public:
    SharedObject() = default;
    SharedObject(const SharedObject&) = delete;
    SharedObject& operator=(const SharedObject&) = delete;

    void retain() noexcept final { ++references_; }

    void release() noexcept final {
        if (--references_ == 0) delete this;
    }

    void* offer(const Host::Guid& interfaceId) final {
        void* found = HostKit::interfaceAmong<Interfaces...>(this, interfaceId);
        if (found != nullptr) retain();
        return found;
    }

protected:
    virtual ~SharedObject() = default;

private:
    std::int64_t references_ = 0;
};

}  // namespace Rotavue::Workbench
