#pragma once

#include "plugin/module/windows/interfaces/binary_form.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace Meridax::Host::Binary {

/// A function in a virtual table, whatever its signature.
using Entry = void (*)();

/// The virtual table of an interface: what the first word of its objects points to.
template <class Interface>
using VirtualTable = std::array<Entry, Table<Interface>::Operations::SlotCount>;

static_assert(sizeof(Entry) == 8,
              "the contract is that of 64-bit Windows, where the caller clears "
              "the stack: one entry serves for all reserved slots");

/// What stands in a slot whose operation nobody calls.
inline HRESULT STDMETHODCALLTYPE reservedOperation(IDispatch* /*object*/) noexcept {
    return E_NOTIMPL;
}

template <class Function>
Entry entryOf(Function* function) noexcept {
    return reinterpret_cast<Entry>(function);
}

/// Builds the table of `Interface` for the objects of a host. `Functions` has the seven common ones
/// under their names as static functions that take an `IDispatch*` first, and
/// `own<Row>`, a `SignatureOf<Row>` for each row of the interface's list.
template <class Interface, class Functions>
VirtualTable<Interface> makeVirtualTable() noexcept {
    VirtualTable<Interface> table;
    table.fill(entryOf(&reservedOperation));
    const std::array common{
        entryOf(&Functions::QueryInterface), entryOf(&Functions::AddRef),
        entryOf(&Functions::Release),        entryOf(&Functions::GetTypeInfoCount),
        entryOf(&Functions::GetTypeInfo),    entryOf(&Functions::GetIDsOfNames),
        entryOf(&Functions::Invoke)};
    static_assert(common.size() == CommonSlots);
    std::copy(common.begin(), common.end(), table.begin());
    forEachOperation<Interface>([&]<class Row>(std::type_identity<Row>) {
        const SignatureOf<Row> function = Functions::template own<Row>;
        table[Row::Slot] = entryOf(function);
    });
    return table;
}

/// The function in the slot of `Row` of an object's virtual table.
template <class Row>
SignatureOf<Row> functionOf(IDispatch* object) noexcept {
    const Entry* const table = *reinterpret_cast<const Entry* const*>(object);
    return reinterpret_cast<SignatureOf<Row>>(table[Row::Slot]);
}

}  // namespace Meridax::Host::Binary
