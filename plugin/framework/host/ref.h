#pragma once

#include "plugin/framework/host/host_error.h"
#include "plugin/framework/host/host_object.h"

#include <utility>

namespace Meridax::Host {

/// A shared reference to an object. Its verbs name what happens to the count:
///
/// - `adopt` takes over a reference that the caller already owns;
/// - `share` (and copying) adds one;
/// - `detach` hands the reference out and leaves this one empty;
/// - `offered` asks the object for another of its interfaces.
///
/// Assignment retains the new object before it releases the old one, and storing the same object
/// again does nothing. Calling through an empty reference raises `HostError` 0x80004003: the rule
/// for null objects sits here, and no caller tests for null before a call.
template <class Interface>
class Ref {
public:
    Ref() noexcept = default;
    Ref(std::nullptr_t) noexcept {}

    Ref(const Ref& other) noexcept : object_(other.object_) {
        if (object_ != nullptr) object_->retain();
    }

    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    ~Ref() {
        if (object_ != nullptr) object_->release();
    }

    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment,cert-oop54-cpp): it compares the objects.
    Ref& operator=(const Ref& other) noexcept {
        if (object_ != other.object_) Ref(other).swap(*this);
        return *this;
    }

    Ref& operator=(Ref&& other) noexcept {
        if (object_ != other.object_) Ref(std::move(other)).swap(*this);
        return *this;
    }

    /// Takes over a reference that the caller owns; null gives an empty reference.
    static Ref adopt(Interface* object) noexcept {
        Ref result;
        result.object_ = object;
        return result;
    }

    /// Adds a reference of its own; null gives an empty reference.
    static Ref share(Interface* object) noexcept {
        if (object != nullptr) object->retain();
        return adopt(object);
    }

    /// Hands the reference to the caller, who then owns it, and leaves this one empty.
    [[nodiscard]] Interface* detach() noexcept { return std::exchange(object_, nullptr); }

    /// The object's interface `Other`, or an empty reference when this one is empty or the object
    /// does not offer it.
    template <class Other>
    [[nodiscard]] Ref<Other> offered() const {
        if (object_ == nullptr) return {};
        return Ref<Other>::adopt(static_cast<Other*>(object_->offer(Other::Identifier)));
    }

    /// The object, borrowed; null when empty.
    Interface* get() const noexcept { return object_; }

    Interface* operator->() const {
        if (object_ == nullptr) raiseNullObject();
        return object_;
    }

    Interface& operator*() const { return *operator->(); }

    explicit operator bool() const noexcept { return object_ != nullptr; }

    bool operator==(const Ref& other) const noexcept { return object_ == other.object_; }

    void swap(Ref& other) noexcept { std::swap(object_, other.object_); }

private:
    Interface* object_ = nullptr;
};

}  // namespace Meridax::Host
