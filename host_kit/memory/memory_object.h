#pragma once

#include "host_kit/memory/memory_host.h"
#include "plugin/framework/host/host_object.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace Rotavue::HostKit {

/// What all objects of a memory host share: a plain count of the references held from outside, an
/// entry in the ledger, a name for logs, and the gate through which each of their operations goes.
class MemoryObject {
public:
    explicit MemoryObject(MemoryHost& host) : host_(host) { host_.ledger.enter(*this); }
    MemoryObject(const MemoryObject&) = delete;
    MemoryObject& operator=(const MemoryObject&) = delete;

    /// As sessions and logs call the object: "channel:orbit", "pen".
    virtual std::string name() const = 0;

    /// What tells it from others of its kind in the line of a call; nothing for most.
    virtual std::optional<CallValue> logName() const { return std::nullopt; }

    std::int32_t references() const { return references_; }

protected:
    virtual ~MemoryObject() { host_.ledger.leave(*this); }

    template <class Answer, class... Arguments>
    auto call(Operation operation, Answer answer, const Arguments&... arguments) const {
        return host_.gate.call(operation, *this, std::move(answer), arguments...);
    }

    /// The object behind an interface that the plug-in handed in. Raises 0x80070057 for one that is
    /// not of this host and this class.
    template <class Object, class Interface>
    Object& own(Interface& object) const {
        auto* known = dynamic_cast<Object*>(&object);
        if (known == nullptr || &known->host_ != &host_) {
            throw Host::HostError(Host::Status::InvalidArgument);
        }
        return *known;
    }

    MemoryHost& host_;
    std::int32_t references_ = 0;
};

/// The interface of that identifier among those that `object` implements, as a pointer to exactly
/// that class; null where it implements none such.
template <class First, class... Rest, class Object>
void* interfaceAmong(Object* object, const Host::Guid& identifier) {
    void* found = nullptr;
    const auto match = [&]<class Interface>(std::type_identity<Interface>) {
        if (Interface::Identifier == identifier) found = static_cast<Interface*>(object);
    };
    match(std::type_identity<First>{});
    (match(std::type_identity<Rest>{}), ...);
    if (Host::IHostObject::Identifier == identifier) {
        found = static_cast<Host::IHostObject*>(static_cast<First*>(object));
    }
    return found;
}

/// An object that lives as long as its host.
template <class... Interfaces>
class LastingObject : public Interfaces..., public MemoryObject {
public:
    using MemoryObject::MemoryObject;

    void retain() noexcept final { ++references_; }
    void release() noexcept final { --references_; }

    void* offer(const Host::Guid& interfaceId) final {
        void* found = interfaceAmong<Interfaces...>(this, interfaceId);
        if (found != nullptr) retain();
        return found;
    }
};

/// An object that the host makes on demand and owns by shared pointer: it lives while the host has
/// a use for it or a reference is held from outside.
template <class... Interfaces>
class PassingObject : public Interfaces...,
                      public MemoryObject,
                      public std::enable_shared_from_this<PassingObject<Interfaces...>> {
public:
    using MemoryObject::MemoryObject;

    void retain() noexcept final {
        if (++references_ == 1) self_ = this->shared_from_this();
    }

    void release() noexcept final {
        if (--references_ > 0) return;
        const auto last = std::move(self_);
    }

    void* offer(const Host::Guid& interfaceId) final {
        void* found = interfaceAmong<Interfaces...>(this, interfaceId);
        if (found != nullptr) retain();
        return found;
    }

private:
    std::shared_ptr<PassingObject> self_;
};

}  // namespace Rotavue::HostKit
