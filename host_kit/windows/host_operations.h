#pragma once

#include "host_kit/windows/com_object.h"
#include "host_kit/windows/error_report.h"
#include "host_kit/windows/incoming.h"
#include "host_kit/windows/outgoing.h"
#include "plugin/module/windows/interfaces/binary_form.h"

#include <tuple>

namespace Rotavue::HostKit {

namespace Detail {

template <class Row, class Member, class Outs>
struct HostOperation;

/// The function in the slot of an operation: what crosses becomes arguments of the host's object,
/// what that gives goes back, and what it raises becomes a status.
template <class Row, class Result, class Class, class... Arguments, class... Outs>
struct HostOperation<Row, Result (Class::*)(Arguments...), Binary::OutPointers<Outs...>> {
    static HRESULT STDMETHODCALLTYPE run(IDispatch* object,
                                         typename Binary::ArgumentForm<Arguments>::Type... passed,
                                         Outs... outs) noexcept {
        const ComFace& face = *reinterpret_cast<const ComFace*>(object);
        return statusOf([&] {
            if (((outs == nullptr) || ...)) Host::raiseNullObject();
            std::tuple<Incoming<Arguments>...> arguments(passed...);
            std::apply(
                [&](auto&... incoming) {
                    perform(*static_cast<Class*>(face.target), outs..., incoming...);
                    (incoming.giveBack(), ...);
                },
                arguments);
        });
    }

private:
    static void perform(Class& target, Outs... outs, Incoming<Arguments>&... incoming) {
        if constexpr (std::is_void_v<Result>)
            (target.*Row::Call)(incoming.value()...);
        else
            giveResult((target.*Row::Call)(incoming.value()...), outs...);
    }
};

}  // namespace Detail

/// The functions of the virtual table of an interface, for `Binary::makeVirtualTable`.
struct HostFunctions {
    static HRESULT STDMETHODCALLTYPE QueryInterface(IDispatch* object, REFIID identifier,
                                                    void** result) noexcept;
    static ULONG STDMETHODCALLTYPE AddRef(IDispatch* object) noexcept;
    static ULONG STDMETHODCALLTYPE Release(IDispatch* object) noexcept;

    // The host's objects are called through their tables alone.
    static HRESULT STDMETHODCALLTYPE GetTypeInfoCount(IDispatch* object, UINT* count) noexcept;
    static HRESULT STDMETHODCALLTYPE GetTypeInfo(IDispatch* object, UINT index, LCID locale,
                                                 ITypeInfo** info) noexcept;
    static HRESULT STDMETHODCALLTYPE GetIDsOfNames(IDispatch* object, REFIID reserved,
                                                   LPOLESTR* names, UINT count, LCID locale,
                                                   DISPID* ids) noexcept;
    static HRESULT STDMETHODCALLTYPE Invoke(IDispatch* object, DISPID id, REFIID reserved,
                                            LCID locale, WORD flags, DISPPARAMS* parameters,
                                            VARIANT* result, EXCEPINFO* exception,
                                            UINT* argument) noexcept;

    template <class Row>
    static constexpr Binary::SignatureOf<Row> own =
        &Detail::HostOperation<Row, std::remove_const_t<decltype(Row::Call)>,
                               typename Binary::ResultForm<Binary::ResultOf<Row>>::Types>::run;
};

}  // namespace Rotavue::HostKit
