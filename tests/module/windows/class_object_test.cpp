#include "plugin/framework/host/host_error.h"
#include "plugin/framework/plugin_interfaces.h"
#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/interfaces/platform_guid.h"
#include "plugin/module/windows/interfaces/plugin_tables.h"
#include "tests/module/windows/loaded_module.h"

#include <gtest/gtest.h>

/// The built module's class, as the component model asks for it.
namespace Rotavue::ModuleTest {
namespace {

namespace Api = Meridax::VisualControls::Api;
using Meridax::Host::Binary::ComRef;
using Meridax::Host::Binary::platformGuid;
using Meridax::Host::Binary::queried;

const CLSID PluginClass = platformGuid(Api::PluginClass);

class ClassObject : public testing::Test {
protected:
    ComRef<IClassFactory> factory() const {
        void* found = nullptr;
        module.classObject(PluginClass, IID_IClassFactory, &found);
        return ComRef<IClassFactory>::adopt(static_cast<IClassFactory*>(found));
    }

    ComRef<IUnknown> object() const {
        void* made = nullptr;
        factory()->CreateInstance(nullptr, IID_IUnknown, &made);
        return ComRef<IUnknown>::adopt(static_cast<IUnknown*>(made));
    }

    LoadedModule module;
};

TEST_F(ClassObject, IsRefusedForAnotherClass) {
    void* found = this;
    EXPECT_EQ(module.classObject(IID_IUnknown, IID_IClassFactory, &found),
              CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(module.classObject(PluginClass, IID_IDispatch, &found), E_NOINTERFACE);
    EXPECT_EQ(module.classObject(PluginClass, IID_IClassFactory, nullptr), E_POINTER);
}

TEST_F(ClassObject, KeepsTheModuleLoadedWhileItIsHeld) {
    EXPECT_EQ(module.canUnloadNow(), S_OK);
    {
        const auto held = factory();
        EXPECT_EQ(module.canUnloadNow(), S_FALSE);
        held->LockServer(TRUE);
    }
    EXPECT_EQ(module.canUnloadNow(), S_FALSE);
    factory()->LockServer(FALSE);
    EXPECT_EQ(module.canUnloadNow(), S_OK);
}

TEST_F(ClassObject, MakesAnObjectThatKeepsTheModuleLoaded) {
    {
        const auto held = object();
        ASSERT_TRUE(held);
        EXPECT_EQ(module.canUnloadNow(), S_FALSE);
    }
    EXPECT_EQ(module.canUnloadNow(), S_OK);
}

TEST_F(ClassObject, AnswersAnotherInterfaceThanItsObjectsOffer) {
    void* found = this;
    EXPECT_EQ(factory()->CreateInstance(nullptr, IID_IClassFactory, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(module.canUnloadNow(), S_OK);
}

TEST_F(ClassObject, ObjectTellsItsTypeFromTheLibraryInTheModule) {
    const auto held = object();
    const auto dispatch = queried<IDispatch>(held.get(), IID_IDispatch);
    ComRef<ITypeInfo> type;
    ASSERT_EQ(dispatch->GetTypeInfo(0, LOCALE_NEUTRAL, type.put()), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, platformGuid(Api::IVCPluginImpl::Identifier));
    EXPECT_NE(attributes->wTypeFlags & TYPEFLAG_FDUAL, 0);
    type->ReleaseTypeAttr(attributes);
}

TEST_F(ClassObject, ObjectHasNoOperationThatCouldBeCalledByName) {
    const auto held = object();
    const auto dispatch = queried<IDispatch>(held.get(), IID_IDispatch);
    std::wstring name = L"draw";
    LPOLESTR names[] = {name.data()};
    DISPID id = 0;
    EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, names, 1, LOCALE_NEUTRAL, &id), DISP_E_UNKNOWNNAME);
    DISPPARAMS none{};
    EXPECT_LT(dispatch->Invoke(1, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &none, nullptr,
                               nullptr, nullptr),
              0);
}

// The module and this program each have their own copy of the language's library.
TEST_F(ClassObject, FailureThatIsThrownCrossesIntoTheProgram) {
    const auto held = object();
    const auto plugin = queried<Api::Binary::IMeridaxPlugin>(
        held.get(), platformGuid(Api::IMeridaxPlugin::Identifier));
    try {
        plugin->message(42, VARIANT{}, nullptr);
        FAIL() << "a null list passed";
    } catch (const Meridax::Host::HostError& failure) {
        EXPECT_EQ(failure.status, 0x80070057U);
        EXPECT_EQ(failure.interfaceId, Meridax::Host::Guid{});
    }
    EXPECT_EQ(plugin->message(7, VARIANT{}, nullptr), 1);
}

}  // namespace
}  // namespace Rotavue::ModuleTest
