#pragma once

#include "plugin/module/windows/interfaces/binary_form.h"
#include "plugin/module/windows/interfaces/host_string.h"
#include "plugin/module/windows/proxies/integer_array.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

/// The arguments of a host call in their binary form. Each is made from the argument, gives the
/// `value` that crosses, takes back what the host changed, and frees what was made for the call.
namespace Meridax::Host::Binary {

template <class Interface>
class ProxyObject;

/// An integer or a floating-point number.
template <class Argument, Truth TruthForm>
class Passed {
public:
    static_assert(std::is_arithmetic_v<Argument>);

    explicit Passed(Argument number) : number_(number) {}
    typename ArgumentForm<Argument>::Type value() const { return number_; }
    void takeBack() const {}

private:
    Argument number_;
};

template <Truth TruthForm>
class Passed<bool, TruthForm> {
public:
    explicit Passed(bool truth) : truth_(truth) {}
    VARIANT_BOOL value() const { return truth_ ? True : VARIANT_FALSE; }
    void takeBack() const {}

private:
    static constexpr VARIANT_BOOL True = TruthForm == Truth::AsMinusOne ? -1 : 1;

    bool truth_;
};

template <Truth TruthForm>
class Passed<DataPosition, TruthForm> {
public:
    explicit Passed(DataPosition position) : position_(position) {}
    LONGLONG value() const {
        const auto offset =
            static_cast<std::uint64_t>(static_cast<std::uint32_t>(position_.offset));
        return static_cast<LONGLONG>(offset << 32U | static_cast<std::uint32_t>(position_.block));
    }
    void takeBack() const {}

private:
    DataPosition position_;
};

template <Truth TruthForm>
class Passed<const std::wstring&, TruthForm> {
public:
    explicit Passed(const std::wstring& text) : text_(text) {}
    BSTR value() const { return text_.get(); }
    void takeBack() const {}

private:
    HostString text_;
};

template <Truth TruthForm>
class Passed<std::wstring&, TruthForm> {
public:
    explicit Passed(std::wstring& text) : owner_(text), text_(text) {}
    BSTR* value() { return text_.put(); }
    void takeBack() { owner_ = text_.copy(); }

private:
    std::wstring& owner_;
    HostString text_;
};

template <Truth TruthForm>
class Passed<std::int32_t&, TruthForm> {
public:
    explicit Passed(std::int32_t& number) : owner_(number), number_(number) {}
    LONG* value() { return &number_; }
    void takeBack() { owner_ = number_; }

private:
    std::int32_t& owner_;
    LONG number_;
};

template <Truth TruthForm>
class Passed<const std::vector<std::int32_t>&, TruthForm> {
public:
    explicit Passed(const std::vector<std::int32_t>& numbers) : numbers_(numbers) {}
    SAFEARRAY* value() const { return numbers_.get(); }
    void takeBack() const {}

private:
    IntegerArray numbers_;
};

/// An object of the host. The plug-in has none but those that it got from the host: behind each
/// stands a proxy.
template <class Interface, Truth TruthForm>
class Passed<Interface&, TruthForm> {
public:
    explicit Passed(Interface& object) : object_(static_cast<ProxyObject<Interface>&>(object)) {}
    IDispatch* value() const { return object_.dispatch(); }
    void takeBack() const {}

private:
    ProxyObject<Interface>& object_;
};

}  // namespace Meridax::Host::Binary
