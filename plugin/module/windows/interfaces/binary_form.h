#pragma once

#include "plugin/framework/host/data/data_position.h"
#include "plugin/module/windows/interfaces/operations.h"
#include "plugin/module/windows/platform_headers.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What crosses for each type of an operation, in the platform's terms, and how the page
/// docs/host-interfaces.md spells it. docs/binary-contract.md tells who owns what.
namespace Meridax::Host::Binary {

/// What the first and the last of the five pointers of `getVersion` point to. Nobody looks at it.
struct UnusedVersionItem {
    std::array<std::uint8_t, 16> bytes{};
};

/// The out pointers of an operation, behind its arguments.
template <class... Pointers>
struct OutPointers {};

/// An argument of that type of an interface's class.
template <class Argument>
struct ArgumentForm;

template <>
struct ArgumentForm<std::int16_t> {
    using Type = SHORT;
    static constexpr std::string_view Text = "SHORT";
};

template <>
struct ArgumentForm<std::int32_t> {
    using Type = LONG;
    static constexpr std::string_view Text = "LONG";
};

template <>
struct ArgumentForm<std::uint32_t> {
    using Type = ULONG;
    static constexpr std::string_view Text = "ULONG";
};

template <>
struct ArgumentForm<double> {
    using Type = double;
    static constexpr std::string_view Text = "double";
};

template <>
struct ArgumentForm<bool> {
    using Type = VARIANT_BOOL;
    static constexpr std::string_view Text = "VARIANT_BOOL";
};

template <>
struct ArgumentForm<DataPosition> {
    using Type = LONGLONG;  ///< block in the low, offset in the high 32 bits
    static constexpr std::string_view Text = "LONGLONG";
};

template <>
struct ArgumentForm<const std::wstring&> {
    using Type = BSTR;
    static constexpr std::string_view Text = "BSTR";
};

template <>
struct ArgumentForm<std::wstring&> {
    using Type = BSTR*;  ///< in and out: the callee may free and replace it
    static constexpr std::string_view Text = "BSTR*";
};

template <>
struct ArgumentForm<std::int32_t&> {
    using Type = LONG*;  ///< in and out
    static constexpr std::string_view Text = "LONG*";
};

template <>
struct ArgumentForm<const std::vector<std::int32_t>&> {
    using Type = SAFEARRAY*;  ///< of `VT_I4`, one dimension, lower bound 0
    static constexpr std::string_view Text = "SAFEARRAY*";
};

/// An object of the host, borrowed for the call.
template <class Interface>
requires requires {
    Table<Interface>::Text;
}
struct ArgumentForm<Interface&> {
    using Type = IDispatch*;
    static constexpr std::string_view Text = Table<Interface>::Text;
    static constexpr std::string_view Stars = "*";
};

/// A result of that type of an interface's class.
template <class Result>
struct ResultForm;

template <>
struct ResultForm<void> {
    using Types = OutPointers<>;
    static constexpr std::string_view Text = "";
};

template <>
struct ResultForm<std::int32_t> {
    using Types = OutPointers<LONG*>;
    static constexpr std::string_view Text = "LONG*";
};

template <>
struct ResultForm<std::uint32_t> {
    using Types = OutPointers<ULONG*>;
    static constexpr std::string_view Text = "ULONG*";
};

template <>
struct ResultForm<double> {
    using Types = OutPointers<double*>;
    static constexpr std::string_view Text = "double*";
};

template <>
struct ResultForm<bool> {
    using Types = OutPointers<VARIANT_BOOL*>;  ///< the same 16 bits where it is a `SHORT`
    static constexpr std::string_view Text = "VARIANT_BOOL*";
};

template <>
struct ResultForm<DataPosition> {
    using Types = OutPointers<DataPosition*>;  ///< two `LONG`s, block first
    static constexpr std::string_view Text = "DataPosition*";
};

template <>
struct ResultForm<std::wstring> {
    using Types = OutPointers<BSTR*>;  ///< allocated by the callee, null for the empty text
    static constexpr std::string_view Text = "BSTR*";
};

template <>
struct ResultForm<HostVersion> {
    using Types = OutPointers<UnusedVersionItem*, LONG*, LONG*, LONG*, UnusedVersionItem*>;
    static constexpr std::string_view Text = "void*, LONG*, LONG*, LONG*, void*";
};

/// An object of the host, retained for the caller.
template <class Interface>
struct ResultForm<Ref<Interface>> {
    using Types = OutPointers<IDispatch**>;
    static constexpr std::string_view Text = Table<Interface>::Text;
    static constexpr std::string_view Stars = "**";
};

/// An object that is asked for the interface that is wanted.
template <>
struct ResultForm<Ref<IHostObject>> {
    using Types = OutPointers<IUnknown**>;
    static constexpr std::string_view Text = "IUnknown**";
};

static_assert(sizeof(DataPosition) == 2 * sizeof(LONG) && sizeof(UnusedVersionItem) == 16);

namespace Detail {

template <class Member, class Outs>
struct SignatureOf;

template <class Result, class Class, class... Arguments, class... Outs>
struct SignatureOf<Result (Class::*)(Arguments...), OutPointers<Outs...>> {
    using Type = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, typename ArgumentForm<Arguments>::Type...,
                                             Outs...);
};

template <class Member>
struct ResultOf;

template <class Result, class Class, class... Arguments>
struct ResultOf<Result (Class::*)(Arguments...)> {
    using Type = Result;
};

}  // namespace Detail

/// What a row's operation gives.
template <class Row>
using ResultOf = typename Detail::ResultOf<std::remove_const_t<decltype(Row::Call)>>::Type;

/// The function that stands in an operation's slot.
template <class Row>
using SignatureOf = typename Detail::SignatureOf<std::remove_const_t<decltype(Row::Call)>,
                                                 typename ResultForm<ResultOf<Row>>::Types>::Type;

}  // namespace Meridax::Host::Binary
