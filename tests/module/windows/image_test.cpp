#include "tests/module/windows/image.h"
#include "tests/module/windows/loaded_module.h"

#include <gtest/gtest.h>

#include <filesystem>

/// The file of the built module.
namespace Rotavue::ModuleTest {
namespace {

using Names = std::set<std::string>;

TEST(ModuleImage, ExportsTheFiveEntryPointsUndecoratedAndNothingElse) {
    const LoadedModule module;
    EXPECT_EQ(Image(module.handle()).exports(),
              (Names{"DllCanUnloadNow", "DllGetClassObject", "DllInstall", "DllRegisterServer",
                     "DllUnregisterServer"}));
    EXPECT_EQ(Image(module.handle()).exportCount(), 5U);
}

TEST(ModuleImage, NeedsNoLibraryButTheSystems) {
    const Names system{"advapi32.dll", "comctl32.dll", "kernel32.dll", "msvcrt.dll",
                       "ole32.dll",    "oleaut32.dll", "user32.dll"};
    const LoadedModule module;
    for (const std::string& needed : Image(module.handle()).imports())
        EXPECT_TRUE(system.contains(needed)) << needed;
}

TEST(ModuleImage, ReadiesTheCommonControlsAndTurnsThreadNotificationsOff) {
    const LoadedModule module;
    const Image image(module.handle());
    EXPECT_TRUE(image.importsFrom("comctl32.dll").contains("InitCommonControlsEx"));
    EXPECT_TRUE(image.importsFrom("kernel32.dll").contains("DisableThreadLibraryCalls"));
}

TEST(ModuleImage, IsStrippedAndUnderTwoMegabytes) {
    const LoadedModule module;
    EXPECT_EQ(Image(module.handle()).headers().FileHeader.PointerToSymbolTable, 0U);
    EXPECT_LT(std::filesystem::file_size(ROTAVUE_MODULE_FILE), 2'000'000U);
}

TEST(ModuleImage, IsFor64Bits) {
    const LoadedModule module;
    EXPECT_EQ(Image(module.handle()).headers().FileHeader.Machine, IMAGE_FILE_MACHINE_AMD64);
}

}  // namespace
}  // namespace Rotavue::ModuleTest
