#pragma once

#include "plugin/module/windows/interfaces/binary_form.h"
#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/interfaces/host_string.h"
#include "plugin/module/windows/proxies/make_proxy.h"

#include <string>
#include <tuple>

/// The results of a host call: zero or null before it, taken after it. What the host allocated or
/// retained is owned from the moment at which the call returns, whether it succeeded or not.
namespace Meridax::Host::Binary {

/// An integer or a floating-point number.
template <class Result>
class Returned {
public:
    auto pointers() { return std::tuple(&number_); }
    Result taken() const { return number_; }

private:
    template <class Number>
    static Number pointed(OutPointers<Number*>);

    decltype(pointed(typename ResultForm<Result>::Types{})) number_{};
};

template <>
class Returned<void> {
public:
    std::tuple<> pointers() const { return {}; }
    void taken() const {}
};

/// True is anything but 0.
template <>
class Returned<bool> {
public:
    auto pointers() { return std::tuple(&truth_); }
    bool taken() const { return truth_ != VARIANT_FALSE; }

private:
    VARIANT_BOOL truth_ = VARIANT_FALSE;
};

template <>
class Returned<std::wstring> {
public:
    auto pointers() { return std::tuple(text_.put()); }
    std::wstring taken() const { return text_.copy(); }

private:
    HostString text_;
};

template <>
class Returned<HostVersion> {
public:
    auto pointers() { return std::tuple(&first_, &major_, &minor_, &build_, &last_); }
    HostVersion taken() const { return {major_, minor_, build_}; }

private:
    UnusedVersionItem first_;
    LONG major_ = 0;
    LONG minor_ = 0;
    LONG build_ = 0;
    UnusedVersionItem last_;
};

template <class Interface>
class Returned<Ref<Interface>> {
public:
    auto pointers() { return std::tuple(object_.put()); }
    Ref<Interface> taken() {
        return makeProxy<Interface>(ComRef<IUnknown>::adopt(object_.detach()));
    }

private:
    ComRef<IDispatch> object_;
};

template <>
class Returned<Ref<IHostObject>> {
public:
    auto pointers() { return std::tuple(object_.put()); }
    Ref<IHostObject> taken() { return makeProxy<IHostObject>(std::move(object_)); }

private:
    ComRef<IUnknown> object_;
};

}  // namespace Meridax::Host::Binary
