#pragma once

#include "tests/plugin/module/windows/doubles/raw_object.h"

#include <tuple>
#include <type_traits>

namespace Meridax::Host::Binary {

/// An argument of that type with nothing in it.
template <class Argument>
struct DefaultArgument {
    std::remove_cvref_t<Argument> value{};
    Argument get() { return value; }
};

template <class Interface>
requires requires {
    Table<Interface>::Text;
}
struct DefaultArgument<Interface&> {
    RawObject object;
    Ref<Interface> proxy = object.proxy<Interface>();
    Interface& get() { return *proxy; }
};

/// Calls an operation of an interface's class with such arguments.
template <class Class, class Result, class... Arguments>
void callWithDefaults(Class& object, Result (Class::*operation)(Arguments...)) {
    std::tuple<DefaultArgument<Arguments>...> arguments;
    std::apply([&](auto&... each) { (object.*operation)(each.get()...); }, arguments);
}

}  // namespace Meridax::Host::Binary
