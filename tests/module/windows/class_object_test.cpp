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

const CLSID PluginClass = platformGuid(Api::PluginClass);

class ClassObject : public testing::Test {
protected:
    ComRef<IClassFactory> factory() const {
        void* found = nullptr;
        module.classObject(PluginClass, IID_IClassFactory, &found);
        return ComRef<IClassFactory>::adopt(static_cast<IClassFactory*>(found));
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
        ComRef<IUnknown> object;
        ASSERT_EQ(factory()->CreateInstance(nullptr, IID_IUnknown,
                                            reinterpret_cast<void**>(object.put())),
                  S_OK);
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

}  // namespace
}  // namespace Rotavue::ModuleTest
