#pragma once

#include "plugin/module/windows/platform_headers.h"

#include <utility>

namespace Meridax::Host::Binary {

/// A reference to an object of the component model: what `Ref` is to objects of ours.
template <class Interface>
class ComRef {
public:
    ComRef() noexcept = default;
    ComRef(const ComRef&) = delete;
    ComRef(ComRef&& other) noexcept : object_(other.detach()) {}
    ~ComRef() {
        if (object_ != nullptr) object_->Release();
    }

    ComRef& operator=(ComRef other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over a reference that the caller owns.
    static ComRef adopt(Interface* object) noexcept {
        ComRef result;
        result.object_ = object;
        return result;
    }

    /// Adds a reference of its own.
    static ComRef share(Interface* object) noexcept {
        if (object != nullptr) object->AddRef();
        return adopt(object);
    }

    /// Hands the reference to the caller and leaves this one empty.
    [[nodiscard]] Interface* detach() noexcept { return std::exchange(object_, nullptr); }

    /// Where a call puts a retained object; for an empty reference.
    Interface** put() noexcept { return &object_; }

    Interface* get() const noexcept { return object_; }
    Interface* operator->() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

private:
    Interface* object_ = nullptr;
};

/// The object's interface of that identifier; an empty reference where it refuses.
template <class Interface>
ComRef<Interface> queried(IUnknown* object, const GUID& interfaceId) noexcept {
    void* found = nullptr;
    if (FAILED(object->QueryInterface(interfaceId, &found))) return {};
    return ComRef<Interface>::adopt(static_cast<Interface*>(found));
}

}  // namespace Meridax::Host::Binary
