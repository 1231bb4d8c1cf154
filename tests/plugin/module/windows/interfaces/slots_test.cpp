#include "tests/plugin/host_contract.h"
#include "tests/plugin/module/windows/doubles/default_call.h"

#include <gtest/gtest.h>

#include <utility>

/// Where each operation of the 28 interfaces lands, by the virtual tables as they are built: place
/// p stands in slot 6 + p.
namespace Meridax::Host::Binary {
namespace {

using ::Rotavue::SourceTest::Contract;

/// The slot of an operation by the contract; 0 where the contract has none of that name.
std::size_t contractSlot(std::string_view interfaceName, std::string_view operation) {
    for (const auto& one : Contract) {
        if (one.name != interfaceName) continue;
        for (const auto& place : one.places)
            if (place.operation == operation) return static_cast<std::size_t>(6 + place.number);
    }
    return 0;
}

std::size_t landedIn = 0;

template <std::size_t Slot>
HRESULT STDMETHODCALLTYPE land(IDispatch* /*object*/) {
    landedIn = Slot;
    return E_FAIL;
}

/// An object that notes which of its slots was called.
void noteEverySlot(RawObject& object) {
    [&]<std::size_t... Offset>(std::index_sequence<Offset...>) {
        (object.putAt(7 + Offset, entryOf(&land<7 + Offset>)), ...);
    }
    (std::make_index_sequence<208>{});
}

TEST(Slots, EveryCallOfAProxyLandsInTheSlotOfItsPlace) {
    RawObject object;
    noteEverySlot(object);
    std::size_t calls = 0;
    forEachInterface([&]<class Interface>(std::type_identity<Interface>) {
        const Ref<Interface> proxy = object.proxy<Interface>();
        forEachOperation<Interface>([&]<class Row>(std::type_identity<Row>) {
            landedIn = 0;
            const HostError failure = failureOf([&] { callWithDefaults(*proxy, Row::Call); });
            EXPECT_EQ(landedIn, contractSlot(Table<Interface>::Text, Row::Text)) << Row::Text;
            EXPECT_EQ(failure.status, 0x80004005U) << Row::Text;
            EXPECT_EQ(failure.interfaceId, Interface::Identifier) << Row::Text;
            ++calls;
        });
    });
    EXPECT_EQ(calls, 132U);
}

TEST(Slots, NoReferenceIsLeftByAnyCall) {
    RawObject object;
    noteEverySlot(object);
    forEachInterface([&]<class Interface>(std::type_identity<Interface>) {
        const Ref<Interface> proxy = object.proxy<Interface>();
        forEachOperation<Interface>([&]<class Row>(std::type_identity<Row>) {
            failureOf([&] { callWithDefaults(*proxy, Row::Call); });
        });
    });
    EXPECT_EQ(object.references, 0U);
}

std::string_view calledOperation;

/// The operations of a host's object, which note their names.
struct NamedFunctions {
    static HRESULT STDMETHODCALLTYPE QueryInterface(IDispatch*, REFIID, void**) { return S_OK; }
    static ULONG STDMETHODCALLTYPE AddRef(IDispatch*) { return 1; }
    static ULONG STDMETHODCALLTYPE Release(IDispatch*) { return 0; }
    static HRESULT STDMETHODCALLTYPE GetTypeInfoCount(IDispatch*, UINT*) { return S_OK; }
    static HRESULT STDMETHODCALLTYPE GetTypeInfo(IDispatch*, UINT, LCID, ITypeInfo**) {
        return S_OK;
    }
    static HRESULT STDMETHODCALLTYPE GetIDsOfNames(IDispatch*, REFIID, LPOLESTR*, UINT, LCID,
                                                   DISPID*) {
        return S_OK;
    }
    static HRESULT STDMETHODCALLTYPE Invoke(IDispatch*, DISPID, REFIID, LCID, WORD, DISPPARAMS*,
                                            VARIANT*, EXCEPINFO*, UINT*) {
        return S_OK;
    }

    template <class Row, class Signature>
    struct Noted;

    template <class Row, class... Arguments>
    struct Noted<Row, HRESULT(STDMETHODCALLTYPE*)(Arguments...)> {
        static HRESULT STDMETHODCALLTYPE call(Arguments...) {
            calledOperation = Row::Text;
            return S_OK;
        }
    };

    template <class Row>
    static constexpr SignatureOf<Row> own = &Noted<Row, SignatureOf<Row>>::call;
};

/// The operation of the contract in a slot; empty for a reserved one.
std::string contractOperation(std::string_view interfaceName, std::size_t slot) {
    for (const auto& one : Contract) {
        if (one.name != interfaceName) continue;
        for (const auto& place : one.places)
            if (static_cast<std::size_t>(6 + place.number) == slot) return place.operation;
    }
    return "";
}

TEST(Slots, EverySlotOfAHostsTableHoldsItsOperationOrIsReserved) {
    forEachInterface([]<class Interface>(std::type_identity<Interface>) {
        const auto table = makeVirtualTable<Interface, NamedFunctions>();
        for (std::size_t slot = 7; slot < table.size(); ++slot) {
            calledOperation = "";
            const auto raw = reinterpret_cast<HRESULT (*)(IDispatch*)>(table[slot]);
            const HRESULT status = raw(nullptr);
            const std::string expected = contractOperation(Table<Interface>::Text, slot);
            EXPECT_EQ(calledOperation, expected) << Table<Interface>::Text << " slot " << slot;
            EXPECT_EQ(status, expected.empty() ? E_NOTIMPL : S_OK);
        }
    });
}

TEST(Slots, TableEndsWithItsLastOperation) {
    EXPECT_EQ(VirtualTable<IHostApp>().size(), 183U);      // 6 + 176 is the last slot
    EXPECT_EQ(VirtualTable<IHostChannel>().size(), 215U);  // 6 + 208
    EXPECT_EQ(VirtualTable<IHostXmlFactory>().size(), 8U);
}

}  // namespace
}  // namespace Meridax::Host::Binary
