#include "tests/plugin/module/windows/doubles/plugin_fixture.h"
#include "tests/plugin/module/windows/doubles/raw_object.h"
#include "tests/plugin/module/windows/doubles/variant_list.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Host::Binary::failureOf;
using Host::Binary::RawObject;
using PluginObjectTest = PluginFixture;

TEST_F(PluginObjectTest, OffersItsFourInterfacesUnderOneIdentity) {
    for (const GUID& wanted :
         {IID_IUnknown, IID_IDispatch, platformGuid(Api::IVCPluginImpl::Identifier),
          platformGuid(Api::IMeridaxPlugin::Identifier)}) {
        const auto offered = queried<IUnknown>(object.get(), wanted);
        ASSERT_TRUE(offered);
        EXPECT_EQ(queried<IUnknown>(offered.get(), IID_IUnknown).get(), object.get());
    }
    EXPECT_FALSE(queried<IUnknown>(object.get(), IID_IClassFactory));
    EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(PluginObjectTest, EndsWithItsLastReference) {
    EXPECT_EQ(object->AddRef(), 2U);
    EXPECT_EQ(object->Release(), 1U);
    EXPECT_EQ(object.detach()->Release(), 0U);
    EXPECT_EQ(record.calls, std::vector<std::string>{"~"});
    EXPECT_FALSE(liveObjects.any());
}

TEST_F(PluginObjectTest, MessageStandsInSlotThree) {
    using Message = HRESULT(STDMETHODCALLTYPE*)(void*, ULONG, VARIANT, VARIANT*);
    const auto plugin = messages(object);
    void* const* const slots = *reinterpret_cast<void* const* const*>(plugin.get());
    const auto message = reinterpret_cast<Message>(reinterpret_cast<std::uintptr_t>(slots[3]));
    EXPECT_EQ(message(plugin.get(), 7, VARIANT{}, &result), 1);
    EXPECT_EQ(message(plugin.get(), 0, VARIANT{}, &result), 0);
    EXPECT_EQ(result.iVal, 1);
}

TEST_F(PluginObjectTest, CodesThatNobodyKnowsLeaveTheResultUntouched) {
    for (const ULONG code : {1UL, 46UL, 0xFFFFFFFFUL}) {
        EXPECT_EQ(send(code), 0) << code;
        EXPECT_EQ(result.vt, VT_EMPTY) << code;
    }
}

TEST_F(PluginObjectTest, ResultMayBeNull) {
    EXPECT_EQ(messages(object)->message(0, VARIANT{}, nullptr), 0);
}

TEST_F(PluginObjectTest, BooleansAndFourIntegersAnswerInTheResult) {
    record.canCopy = true;
    record.first = {1, 2};
    record.second = {3, -4};
    EXPECT_EQ(send(30), 0);
    EXPECT_EQ(result.boolVal, 1);
    EXPECT_EQ(send(6), 0);
    const auto* numbers = static_cast<const LONG*>(result.parray->pvData);
    EXPECT_EQ(std::vector<LONG>(numbers, numbers + 4), (std::vector<LONG>{1, 2, 3, -4}));
    ::VariantClear(&result);
}

TEST_F(PluginObjectTest, NullListIsThrownOutOfTheMessage) {
    EXPECT_EQ(failureOf([this] { send(3); }).status, 0x80070057U);
}

TEST_F(PluginObjectTest, AttachWithOneElementStoresTheAppBeforeItThrows) {
    RawObject app;
    const VariantList list({objectVariant(app.get())});
    EXPECT_EQ(failureOf([&] { send(2, list.value()); }).status, 0x80070057U);
    EXPECT_TRUE(record.control->hostApp);
    object = ComRef<IUnknown>();
    EXPECT_EQ(app.references, 1U);  // the list's own
}

TEST_F(PluginObjectTest, ErrorOfTheControlGoesOnIntoTheHost) {
    record.during = [] { throw std::out_of_range("too far"); };
    EXPECT_THROW(send(18), std::out_of_range);
    record.during = nullptr;
    EXPECT_EQ(send(18), 0);
}

TEST_F(PluginObjectTest, OutlivesTheMessageInWhichTheHostLetsGoOfIt) {
    IUnknown* const last = object.detach();
    auto plugin = ComRef<MessageObject>();
    last->QueryInterface(platformGuid(Api::IMeridaxPlugin::Identifier),
                         reinterpret_cast<void**>(plugin.put()));
    last->Release();
    MessageObject* const borrowed = plugin.detach();
    record.during = [&] {
        borrowed->Release();
        record.calls.emplace_back("released");
    };
    EXPECT_EQ(borrowed->message(18, VARIANT{}, nullptr), 0);
    EXPECT_EQ(record.calls.back(), "~");
    EXPECT_EQ(record.calls[record.calls.size() - 2], "released");
    record.during = nullptr;
}

TEST_F(PluginObjectTest, AggregatedObjectForwardsItsIdentity) {
    RawObject outer;
    auto inner = make(outer.get());
    const ULONG before = outer.references;
    {
        const auto plugin = messages(inner);  // asked of the inner identity itself
        EXPECT_EQ(outer.references, before + 1);
        EXPECT_EQ(queried<IUnknown>(plugin.get(), IID_IUnknown).get(), outer.get());
    }
    EXPECT_EQ(outer.references, before);
    EXPECT_NE(inner.get(), outer.get());
    EXPECT_EQ(inner.detach()->Release(), 0U);
}

TEST_F(PluginObjectTest, EveryInterfaceOfAnAggregatedObjectBelongsToTheOuterOne) {
    RawObject outer;
    const auto inner = make(outer.get());
    for (const GUID& wanted : {IID_IDispatch, platformGuid(Api::IVCPluginImpl::Identifier),
                               platformGuid(Api::IMeridaxPlugin::Identifier)}) {
        const ULONG before = outer.references;
        {
            const auto offered = queried<IUnknown>(inner.get(), wanted);
            ASSERT_TRUE(offered);
            EXPECT_EQ(outer.references, before + 1);
            EXPECT_EQ(queried<IUnknown>(offered.get(), IID_IDispatch).get(), outer.get());
        }
        EXPECT_EQ(outer.references, before);
    }
    EXPECT_EQ(queried<IUnknown>(inner.get(), IID_IUnknown).get(), inner.get());
}

/// The object that goes, for the host's object that it releases as its last.
IUnknown* going = nullptr;

TEST_F(PluginObjectTest, ReferencesTakenWhileItsPartsGoDoNotEndItAgain) {
    RawObject app;
    RawObject outer;
    app.putAt(2, Host::Binary::entryOf(+[](IDispatch* self) -> ULONG {
                  RawObject& released = RawObject::of(self);
                  if (going != nullptr) released.numbers = {going->AddRef(), going->Release()};
                  return --released.references;
              }));
    const VariantList list({objectVariant(app.get())});
    for (IUnknown* const whole :
         {static_cast<IUnknown*>(nullptr), static_cast<IUnknown*>(outer.get())}) {
        object = make(whole);
        EXPECT_EQ(failureOf([&] { send(2, list.value()); }).status, 0x80070057U);
        going = object.detach();
        EXPECT_EQ(going->Release(), 0U);
        going = nullptr;
        EXPECT_EQ(app.numbers, (std::vector<std::int64_t>{2, 1}));
        app.numbers.clear();
    }
    EXPECT_EQ(app.references, 1U);  // the list's own
    EXPECT_FALSE(liveObjects.any());
}

TEST_F(PluginObjectTest, IsNotMadeWithoutAPlaceToPutIt) {
    EXPECT_EQ(comFactory.CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
    EXPECT_TRUE(record.calls.empty());  // no control was made and ended
}

TEST_F(PluginObjectTest, AggregationNeedsTheIdentity) {
    RawObject outer;
    void* made = this;
    EXPECT_EQ(comFactory.CreateInstance(outer.get(), IID_IDispatch, &made), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(made, nullptr);
}

TEST_F(PluginObjectTest, AnyErrorWhileItIsMadeIsExhaustedMemory) {
    makeControl = []() -> std::unique_ptr<Api::VisualControl> { throw std::runtime_error("no"); };
    void* made = this;
    EXPECT_EQ(comFactory.CreateInstance(nullptr, IID_IUnknown, &made), E_OUTOFMEMORY);
    EXPECT_EQ(made, nullptr);
}

TEST_F(PluginObjectTest, DispatchKnowsOneTypeAndNoReservedInterface) {
    const auto dispatch = queried<IDispatch>(object.get(), IID_IDispatch);
    UINT count = 0;
    EXPECT_EQ(dispatch->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1U);
    ComRef<ITypeInfo> type;
    EXPECT_EQ(dispatch->GetTypeInfo(1, 0, type.put()), DISP_E_BADINDEX);
    DISPID id = 0;
    EXPECT_EQ(dispatch->GetIDsOfNames(IID_IUnknown, nullptr, 0, 0, &id), DISP_E_UNKNOWNINTERFACE);
    EXPECT_EQ(dispatch->Invoke(0, IID_IUnknown, 0, 0, nullptr, nullptr, nullptr, nullptr),
              DISP_E_UNKNOWNINTERFACE);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
