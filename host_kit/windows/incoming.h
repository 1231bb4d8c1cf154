#pragma once

#include "host_kit/namespaces.h"
#include "host_kit/windows/com_object.h"
#include "plugin/framework/host/host_error.h"
#include "plugin/module/windows/interfaces/binary_form.h"
#include "plugin/module/windows/interfaces/host_string.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Rotavue::HostKit {

namespace Binary = Host::Binary;

/// An argument as the plug-in passed it, and `value()` as the operation of the host's object takes
/// it. What the operation changed goes back with `giveBack()`.
template <class Argument>
class Incoming {
public:
    explicit Incoming(typename Binary::ArgumentForm<Argument>::Type passed)
        : value_(static_cast<Argument>(passed)) {}

    Argument value() const { return value_; }
    void giveBack() const noexcept {}

private:
    Argument value_;
};

/// Anything but 0 is true.
template <>
inline Incoming<bool>::Incoming(VARIANT_BOOL passed) : value_(passed != VARIANT_FALSE) {}

/// The block in the low, the offset in the high 32 bits.
template <>
inline Incoming<Host::DataPosition>::Incoming(LONGLONG passed)
    : value_{static_cast<std::int32_t>(passed), static_cast<std::int32_t>(passed >> 32)} {}

/// A borrowed text; null is the empty one.
template <>
class Incoming<const std::wstring&> {
public:
    explicit Incoming(BSTR passed) : text_(Binary::HostString::copyOf(passed)) {}

    const std::wstring& value() const { return text_; }
    void giveBack() const noexcept {}

private:
    std::wstring text_;
};

/// A text of the caller that the operation may replace.
template <>
class Incoming<std::wstring&> {
public:
    explicit Incoming(BSTR* passed)
        : place_(neededPlace(passed)), text_(Binary::HostString::copyOf(*passed)) {}

    std::wstring& value() { return text_; }

    void giveBack() const {
        Binary::HostString text(text_);
        ::SysFreeString(*place_);
        *place_ = text.detach();
    }

private:
    static BSTR* neededPlace(BSTR* place) {
        if (place == nullptr) Host::raiseNullObject();
        return place;
    }

    BSTR* place_;
    std::wstring text_;
};

/// A number of the caller that the operation may change.
template <>
class Incoming<std::int32_t&> {
public:
    explicit Incoming(LONG* passed) : place_(passed) {
        if (place_ == nullptr) Host::raiseNullObject();
        value_ = static_cast<std::int32_t>(*place_);
    }

    std::int32_t& value() { return value_; }
    void giveBack() const noexcept { *place_ = value_; }

private:
    LONG* place_;
    std::int32_t value_ = 0;
};

/// The numbers of a one-dimensional array of `VT_I4` from lower bound 0. Raises 0x80070057 for any
/// other array.
std::vector<std::int32_t> integersOf(SAFEARRAY* passed);

template <>
class Incoming<const std::vector<std::int32_t>&> {
public:
    explicit Incoming(SAFEARRAY* passed) : numbers_(integersOf(passed)) {}

    const std::vector<std::int32_t>& value() const { return numbers_; }
    void giveBack() const noexcept {}

private:
    std::vector<std::int32_t> numbers_;
};

/// An object of the host that comes back. Raises 0x80004003 for none and 0x80070057 for a stranger.
template <class Interface>
requires requires {
    Binary::Table<Interface>::Text;
}
class Incoming<Interface&> {
public:
    explicit Incoming(IDispatch* passed) : object_(ComObject::behind<Interface>(passed)) {}

    Interface& value() const { return *object_; }
    void giveBack() const noexcept {}

private:
    Host::Ref<Interface> object_;
};

}  // namespace Rotavue::HostKit
