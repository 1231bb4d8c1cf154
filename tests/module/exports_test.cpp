#include "tests/module/elf_file.h"
#include "tests/module/loaded_module.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace Rotavue::ModuleTest {
namespace {

TEST(Exports, AreTheFiveEntryPointsAndNothingElse) {
    EXPECT_EQ(readElf(ROTAVUE_MODULE_FILE).exported,
              (std::vector<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllInstall",
                                        "DllRegisterServer", "DllUnregisterServer"}));
}

TEST(Exports, FileIsCalledAsHostsKnowItAndHasNoOtherName) {
    EXPECT_EQ(std::filesystem::path(ROTAVUE_MODULE_FILE).filename(), "Rotavue64.vc");
    EXPECT_FALSE(readElf(ROTAVUE_MODULE_FILE).hasSoname);
}

TEST(Exports, NothingBeyondTheLanguagesOwnLibrariesIsNeeded) {
    // The last two are those of a build under the sanitizers.
    const std::vector<std::string> allowed{"libstdc++.so", "libm.so",    "libgcc_s.so", "libc.so",
                                           "ld-linux",     "libasan.so", "libubsan.so"};
    for (const std::string& library : readElf(ROTAVUE_MODULE_FILE).needed) {
        const bool isAllowed =
            std::any_of(allowed.begin(), allowed.end(),
                        [&](const std::string& name) { return library.starts_with(name); });
        EXPECT_TRUE(isAllowed) << library;
    }
}

TEST(Exports, EverySymbolIsFoundAtLoad) {
    EXPECT_NO_THROW(LoadedModule());  // loads with RTLD_NOW
}

TEST(Unloading, ModuleLeavesTheProcessWholly) {
    { const LoadedModule module; }
    EXPECT_FALSE(isModuleLoaded());
}

TEST(Unloading, ModuleThatMadeAControlLeavesTheProcessWholly) {
    {
        const LoadedModule module;
        module.makePlugin()->message(7, nullptr, nullptr);
    }
    EXPECT_FALSE(isModuleLoaded());
}

}  // namespace
}  // namespace Rotavue::ModuleTest
