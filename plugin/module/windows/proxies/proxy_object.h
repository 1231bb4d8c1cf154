#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/module/windows/interfaces/platform_guid.h"
#include "plugin/module/windows/interfaces/virtual_table.h"
#include "plugin/module/windows/proxies/call_failure.h"
#include "plugin/module/windows/proxies/passed.h"
#include "plugin/module/windows/proxies/returned.h"

#include <cstdint>
#include <tuple>
#include <utility>

namespace Meridax::Host::Binary {

/// One call of a host operation by its slot: the arguments in their binary form, the results null
/// before it, the status judged, then what the host gave.
template <class Row, class Member>
struct HostCall;

template <class Row, class Result, class Class, class... Arguments>
struct HostCall<Row, Result (Class::*)(Arguments...)> {
    static Result make(IDispatch* object, Arguments... arguments) {
        std::tuple<Passed<Arguments, Row::TruthCrosses>...> passed{arguments...};
        Returned<Result> returned;
        raiseIfCallFailed(called(object, passed, returned), object, Class::Identifier);
        std::apply([](auto&... each) { (each.takeBack(), ...); }, passed);
        return returned.taken();
    }

private:
    template <class Passed, class Returned>
    static HRESULT called(IDispatch* object, Passed& passed, Returned& returned) {
        const auto call = [object](auto... values) {
            return functionOf<Row>(object)(object, values...);
        };
        const auto values =
            std::apply([](auto&... each) { return std::tuple{each.value()...}; }, passed);
        return std::apply(call, std::tuple_cat(values, returned.pointers()));
    }
};

/// What the proxies have in common: references, and the way to other interfaces of the object. Each
/// reference to a proxy is one to the host's object, so that the host counts what the plug-in
/// holds.
template <class Interface>
class ProxyObject : public Interface {
public:
    /// `object` is exactly this interface of the host's object.
    explicit ProxyObject(ComRef<IUnknown> object) noexcept : object_(object.detach()) {}

    void retain() noexcept final {
        ++count_;
        object_->AddRef();
    }

    void release() noexcept final {
        IUnknown* const object = object_;
        if (--count_ == 0) delete this;
        object->Release();
    }

    void* offer(const Guid& interfaceId) final {
        return makeProxy(interfaceId, queried<IUnknown>(object_, platformGuid(interfaceId)));
    }

    /// The host's object, borrowed.
    IDispatch* dispatch() const noexcept { return static_cast<IDispatch*>(object_); }

protected:
    virtual ~ProxyObject() = default;

    /// Calls the operation `Member` of the host's object.
    template <auto Member, class... Arguments>
    decltype(auto) call(Arguments&&... arguments) {
        using Row = OperationOf<Member>;
        using Type = std::remove_const_t<decltype(Member)>;
        return HostCall<Row, Type>::make(dispatch(), std::forward<Arguments>(arguments)...);
    }

private:
    IUnknown* object_;
    std::int32_t count_ = 1;
};

/// Specialised for each interface of the host: every operation in one line.
template <class Interface>
class Proxy;

}  // namespace Meridax::Host::Binary
