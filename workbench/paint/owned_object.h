#pragma once

#include "plugin/framework/host/host_object.h"

#include <cstdint>

namespace Rotavue::Workbench {

namespace Host = Meridax::Host;

/// A host object that belongs to whoever made it and offers one interface. The references that a
/// plug-in takes are counted and keep nothing alive: what is valid for one call is not outlived.
template <class Interface>
class OwnedObject : public Interface {
public:
    void retain() noexcept final { ++references_; }
    void release() noexcept final { --references_; }

    void* offer(const Host::Guid& interfaceId) final {
        if (interfaceId == Interface::Identifier) return retained(static_cast<Interface*>(this));
        if (interfaceId == Host::IHostObject::Identifier) {
            return retained(static_cast<Host::IHostObject*>(this));
        }
        return nullptr;
    }

    std::int64_t references() const { return references_; }

protected:
    ~OwnedObject() = default;

private:
    template <class Pointer>
    void* retained(Pointer* pointer) {
        retain();
        return pointer;
    }

    std::int64_t references_ = 0;
};

}  // namespace Rotavue::Workbench
