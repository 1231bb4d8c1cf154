#include "tests/module/loaded_module.h"
#include "tests/plugin/framework/doubles/list_arguments.h"
#include "tests/plugin/framework/doubles/text_result.h"
#include "tests/plugin/module/doubles/host_clipboard.h"

#include "host_kit/memory/memory_host.h"

#include <gtest/gtest.h>

namespace Rotavue::ModuleTest {
namespace {

using Api::IClassFactory;
using Api::IMeridaxPlugin;
using Api::IModuleServices;

TEST(ClassObject, IsTheFactoryOfTheOneClass) {
    const LoadedModule module;
    const auto factory = module.classObject<IClassFactory>();
    EXPECT_TRUE(factory);
    EXPECT_TRUE(factory.offered<IModuleServices>());
}

TEST(ClassObject, UnknownClassIsNotAvailable) {
    const LoadedModule module;
    void* object = &object;
    EXPECT_EQ(module.getClassObject(Host::guid("{00000000-0000-0000-0000-000000000001}"),
                                    IClassFactory::Identifier, &object),
              0x80040111U);
    EXPECT_EQ(object, nullptr);
}

TEST(ClassObject, UnknownInterfaceIsRefused) {
    const LoadedModule module;
    void* object = &object;
    EXPECT_EQ(module.getClassObject(Api::PluginClass, IMeridaxPlugin::Identifier, &object),
              0x80004002U);
    EXPECT_EQ(object, nullptr);
}

TEST(ClassObject, InterfaceQueryIsAnsweredBeforeAttachment) {
    const LoadedModule module;
    Api::TextResult result;
    EXPECT_EQ(module.makePlugin()->message(0, nullptr, &result), 0);
    EXPECT_EQ(result.text, "integer 1");
}

TEST(ClassObject, ControlThatIsCarriedCanCopy) {
    const LoadedModule module;
    Api::TextResult result;
    EXPECT_EQ(module.makePlugin()->message(30, nullptr, &result), 0);
    EXPECT_EQ(result.text, "true");
}

TEST(ClassObject, EachObjectHasAControlOfItsOwn) {
    const LoadedModule module;
    HostKit::MemoryHost host;
    const auto attached = module.makePlugin();
    const auto fresh = module.makePlugin();
    const Api::ListArguments arguments{Api::object(host.app()), Api::object(host.control())};
    EXPECT_EQ(attached->message(2, &arguments, nullptr), 0);
    Api::TextResult result;
    EXPECT_THROW(fresh->message(6, nullptr, &result), Host::HostError);
}

TEST(ClassObject, ErrorThrownInsideTheModuleIsCaughtByItsKindOutside) {
    const LoadedModule module;
    try {
        module.makePlugin()->message(2, nullptr, nullptr);
        ADD_FAILURE() << "went on";
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, 0x80070057U);
        EXPECT_EQ(error.interfaceId, Host::Guid{});
    }
}

TEST(ClassObject, ErrorThrownByTheHostPassesThroughTheModule) {
    const LoadedModule module;
    HostKit::MemoryHost host;
    host.fail(HostKit::operation("IHostApp.getVersion"), 1, 0x80004004U);
    const Api::ListArguments arguments{Api::object(host.app()), Api::object(host.control())};
    try {
        module.makePlugin()->message(2, &arguments, nullptr);
        ADD_FAILURE() << "went on";
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, 0x80004004U);
        EXPECT_EQ(error.interfaceId, Host::IHostApp::Identifier);
    }
}

TEST(ClassObject, ReleasedControlHoldsNothingOfTheHost) {
    const LoadedModule module;
    HostKit::MemoryHost host;
    {
        const auto plugin = module.makePlugin();
        const Api::ListArguments arguments{Api::object(host.app()), Api::object(host.control())};
        plugin->message(2, &arguments, nullptr);
        EXPECT_GT(host.references(), 2);
    }
    EXPECT_EQ(host.references(), 0);
}

TEST(ClassObject, ModuleMayUnloadWhenNoObjectLivesAndNoLockIsHeld) {
    const LoadedModule module;
    EXPECT_EQ(module.canUnloadNow(), 0);
    auto factory = module.classObject<IClassFactory>();
    auto plugin = module.makePlugin();
    EXPECT_EQ(module.canUnloadNow(), 1);
    factory->lockServer(true);
    plugin = nullptr;
    factory = nullptr;
    EXPECT_EQ(module.canUnloadNow(), 1);
    module.classObject<IClassFactory>()->lockServer(false);
    EXPECT_EQ(module.canUnloadNow(), 0);
}

TEST(ClassObject, SuppliedClipboardIsGivenBackAtUnload) {
    Meridax::VisualControls::Rotavue::HostClipboard clipboard;
    {
        const LoadedModule module;
        module.classObject<IModuleServices>()->supplyClipboard(&clipboard);
        EXPECT_EQ(clipboard.count, 1);
    }
    EXPECT_EQ(clipboard.count, 0);
}

}  // namespace
}  // namespace Rotavue::ModuleTest
