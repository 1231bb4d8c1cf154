#include "plugin/module/portable/portable_module.h"

#include "plugin/framework/unicode.h"
#include "plugin/framework/visual_control.h"
#include "plugin/module/portable/module_path.h"
#include "tests/plugin/module/doubles/host_clipboard.h"
#include "tests/plugin/module/portable/environment_variable.h"
#include "tests/plugin/module/portable/temporary_folder.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Host::Ref;

/// A control with a text to copy.
class TextControl final : public Api::VisualControl {
public:
    std::wstring clipboardText() override { return L"text"; }
};

class PortableModuleTest : public testing::Test {
protected:
    template <class Interface>
    Ref<Interface> classObject() {
        void* object = nullptr;
        EXPECT_EQ(module.getClassObject(Api::PluginClass, Interface::Identifier, &object), 0);
        return Ref<Interface>::adopt(static_cast<Interface*>(object));
    }

    Ref<Api::IMeridaxPlugin> makePlugin() {
        void* object = nullptr;
        EXPECT_EQ(classObject<Api::IClassFactory>()->createInstance(
                      nullptr, Api::IMeridaxPlugin::Identifier, &object),
                  0);
        return Ref<Api::IMeridaxPlugin>::adopt(static_cast<Api::IMeridaxPlugin*>(object));
    }

    PortableModule module{[] { return std::make_unique<TextControl>(); }};
};

TEST_F(PortableModuleTest, KnowsOneClass) {
    void* object = this;
    EXPECT_EQ(static_cast<std::uint32_t>(module.getClassObject(
                  Api::PluginLibrary, Api::IClassFactory::Identifier, &object)),
              0x80040111U);
    EXPECT_EQ(object, nullptr);
}

TEST_F(PortableModuleTest, RefusesAnUnknownInterfaceAndANullPointer) {
    void* object = this;
    EXPECT_EQ(static_cast<std::uint32_t>(module.getClassObject(
                  Api::PluginClass, Api::IMeridaxPlugin::Identifier, &object)),
              0x80004002U);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(static_cast<std::uint32_t>(
                  module.getClassObject(Api::PluginClass, Api::IClassFactory::Identifier, nullptr)),
              0x80004003U);
}

TEST_F(PortableModuleTest, MayUnloadWhileNothingOfItIsHeld) {
    EXPECT_EQ(module.canUnloadNow(), 0);
    auto factory = classObject<Api::IClassFactory>();
    EXPECT_EQ(module.canUnloadNow(), 1);
    auto plugin = makePlugin();
    factory = nullptr;
    EXPECT_EQ(module.canUnloadNow(), 1);
    plugin = nullptr;
    EXPECT_EQ(module.canUnloadNow(), 0);
}

TEST_F(PortableModuleTest, LockKeepsItLoaded) {
    classObject<Api::IClassFactory>()->lockServer(true);
    EXPECT_EQ(module.canUnloadNow(), 1);
    classObject<Api::IClassFactory>()->lockServer(false);
    EXPECT_EQ(module.canUnloadNow(), 0);
}

TEST_F(PortableModuleTest, CopiesOfAllControlsGoToTheSuppliedClipboard) {
    HostClipboard clipboard;
    const auto plugin = makePlugin();
    plugin->message(31, nullptr, nullptr);
    const auto services = classObject<Api::IModuleServices>();
    services->supplyClipboard(&clipboard);
    plugin->message(31, nullptr, nullptr);
    EXPECT_EQ(clipboard.texts, std::vector<std::wstring>{L"text"});
    services->supplyClipboard(nullptr);
    EXPECT_EQ(clipboard.count, 0);
}

TEST_F(PortableModuleTest, SuppliedClipboardIsGivenBackWithTheModule) {
    HostClipboard clipboard;
    {
        PortableModule shortLived{[] { return std::make_unique<TextControl>(); }};
        void* services = nullptr;
        shortLived.getClassObject(Api::PluginClass, Api::IModuleServices::Identifier, &services);
        Ref<Api::IModuleServices>::adopt(static_cast<Api::IModuleServices*>(services))
            ->supplyClipboard(&clipboard);
        EXPECT_EQ(clipboard.count, 1);
    }
    EXPECT_EQ(clipboard.count, 0);
}

TEST_F(PortableModuleTest, RegistersTheFileThatHoldsIt) {
    const TemporaryFolder folder;
    const EnvironmentVariable moved("MERIDAX_REGISTRY_MACHINE", (folder / "machine").string());
    EXPECT_EQ(module.registerServer(), 0);
    const RegistryFile file = RegistryFile::load(folder / "machine");
    const std::wstring* const path = file.text(
        LR"(SOFTWARE\Classes\CLSID\{264200AB-CDA2-4257-932E-FD19E014BD0C}\InprocServer32)", L"");
    ASSERT_NE(path, nullptr);
    EXPECT_TRUE(std::filesystem::equivalent(Api::utf8FromWide(*path),
                                            std::filesystem::read_symlink("/proc/self/exe")));
    EXPECT_TRUE(modulePath().is_absolute());
}

TEST_F(PortableModuleTest, RegistryThatCannotBeWrittenIsNotReported) {
    const EnvironmentVariable moved("MERIDAX_REGISTRY_MACHINE", "/dev/null/registry.txt");
    EXPECT_EQ(module.registerServer(), 0);
    EXPECT_EQ(module.unregisterServer(), 0);
}

TEST_F(PortableModuleTest, EarlierIconIsReplacedByTheHostsOwn) {
    const TemporaryFolder folder;
    const EnvironmentVariable moved("MERIDAX_REGISTRY_USER", (folder / "user").string());
    writeFile(
        folder / "user",
        "Meridax registry, format 1\n[SOFTWARE\\Meridax\\VCs\\Rotavue]\n\"Icon\" = text \"old\"\n");
    EXPECT_EQ(module.install(true, L"user"), 0);
    const RegistryFile file = RegistryFile::load(folder / "user");
    EXPECT_EQ(file.text(LR"(SOFTWARE\Meridax\VCs\Rotavue)", L"Icon"), nullptr);
    ASSERT_NE(file.text(LR"(SOFTWARE\Meridax\VCs\Rotavue)", L"MeridaxIcon"), nullptr);
    EXPECT_EQ(*file.text(LR"(SOFTWARE\Meridax\VCs\Rotavue)", L"MeridaxIcon"), L"orbit_graph");
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
