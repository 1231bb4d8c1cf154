#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <string_view>
#include <type_traits>

/// The binary form of the host's interfaces: from the one list of each interface's operations come
/// the calls of the proxies, the virtual tables of a host's objects and docs/host-interfaces.md.
namespace Meridax::Host::Binary {

/// The operations of every interface that come before its own: three of identity, four of
/// dispatch.
inline constexpr std::size_t CommonSlots = 7;

/// A name as a template argument.
template <std::size_t Size>
struct Name {
    consteval Name(const char (&text)[Size]) { std::copy_n(text, Size, characters.begin()); }

    constexpr std::string_view text() const { return {characters.data(), Size - 1}; }

    std::array<char, Size> characters{};
};

/// How the truth values of an operation cross.
enum class Truth {
    AsOne,       ///< true is 1 as an argument; a result is a `VARIANT_BOOL`
    AsMinusOne,  ///< true is -1 as an argument
    AsShort      ///< a result is a `SHORT`
};

/// One operation of an interface. Place 1 is the first behind the common ones; `Member` is the same
/// operation of the interface's class, whose types say what crosses.
template <std::size_t Place, Name OperationName, auto Member, Truth TruthForm = Truth::AsOne>
struct Operation {
    static constexpr std::size_t PlaceNumber = Place;
    static constexpr std::size_t Slot = CommonSlots - 1 + Place;
    static constexpr std::string_view Text = OperationName.text();
    static constexpr auto Call = Member;
    static constexpr Truth TruthCrosses = TruthForm;
};

/// The operations of one interface in rising order of their places.
template <class... Operations>
struct OperationList {
    static constexpr std::array Places{Operations::PlaceNumber...};
    static constexpr std::size_t SlotCount = std::max({Operations::Slot...}) + 1;

    static_assert(Places.front() >= 1 &&
                  std::ranges::adjacent_find(Places, std::greater_equal{}) == Places.end());
};

/// Specialised for each interface: `Text`, its name, and `Operations`, its list.
template <class Interface>
struct Table;

namespace Detail {

template <class Member>
struct ClassOf;

template <class Result, class Class, class... Arguments>
struct ClassOf<Result (Class::*)(Arguments...)> {
    using Type = Class;
};

/// Tells pointers to virtual operations apart by their types: whether two of them compare equal is
/// left open by the language.
template <auto Member>
struct MemberTag {};

/// The one of the operations that is `Member`.
template <auto Member, class First, class... Rest>
consteval auto findOperation(OperationList<First, Rest...>) {
    if constexpr (std::is_same_v<MemberTag<First::Call>, MemberTag<Member>>)
        return std::type_identity<First>{};
    else
        return findOperation<Member>(OperationList<Rest...>{});
}

}  // namespace Detail

/// The interface whose operation `Member` is.
template <auto Member>
using InterfaceOf = typename Detail::ClassOf<std::remove_const_t<decltype(Member)>>::Type;

/// The row of the list for an operation of an interface's class. One that is in no list does not
/// compile.
template <auto Member>
using OperationOf = typename decltype(Detail::findOperation<Member>(
    typename Table<InterfaceOf<Member>>::Operations{}))::type;

/// Calls `visit` with each operation of an interface, a `std::type_identity`, in rising order.
template <class Interface, class Visit>
constexpr void forEachOperation(Visit visit) {
    [&]<class... Operations>(OperationList<Operations...>) {
        (visit(std::type_identity<Operations>{}), ...);
    }(typename Table<Interface>::Operations{});
}

}  // namespace Meridax::Host::Binary
