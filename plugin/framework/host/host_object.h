#pragma once

#include "plugin/framework/host/guid.h"

namespace Meridax::Host {

/// What every shared object offers, the host's as well as the plug-in's own: a reference count and
/// the way from one interface of an object to another. Counts are plain, not atomic: an object is
/// used on the one thread that delivers the host's messages.
///
/// `Ref` calls these three; other code has no reason to.
class IHostObject {
public:
    static constexpr Guid Identifier = guid("{00000000-0000-0000-C000-000000000046}");

    IHostObject(const IHostObject&) = delete;
    IHostObject& operator=(const IHostObject&) = delete;

    /// Adds a reference. [any time | never fails]
    virtual void retain() noexcept = 0;

    /// Gives a reference back; the object may end with its last one. [any time | never fails]
    virtual void release() noexcept = 0;

    /// Gives the object's interface of that identifier as a pointer to exactly that class, retained
    /// for the caller, or null when the object does not offer it. [any time | may be null]
    virtual void* offer(const Guid& interfaceId) = 0;

protected:
    IHostObject() = default;
    ~IHostObject() = default;
};

}  // namespace Meridax::Host
