#include "plugin/framework/visual_control.h"
#include "plugin/module/portable/portable_module.h"
#include "plugin/module/portable/registry_file.h"
#include "tests/plugin/module/portable/environment_variable.h"
#include "tests/plugin/module/portable/temporary_folder.h"
#include "tests/support/memory_meter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

namespace Meridax::VisualControls::Rotavue {
namespace {

namespace MemoryMeter = Tests::MemoryMeter;

class RegistrationWithoutMemory : public testing::Test {
protected:
    /// Registers anew with the n-th allocation failing; false when there were fewer.
    bool registerFailingAt(std::int64_t n) {
        std::filesystem::remove(file);
        MemoryMeter::failAt(n);
        status = static_cast<std::uint32_t>(module.registerServer());
        return MemoryMeter::failNoMore();
    }

    std::size_t keys() const { return RegistryFile::load(file).entries().size(); }

    TemporaryFolder folder;
    std::filesystem::path file = folder / "registry.txt";
    EnvironmentVariable machine{"MERIDAX_REGISTRY_MACHINE", file.string()};
    PortableModule module{[] { return std::make_unique<Api::VisualControl>(); }};
    std::uint32_t status = 0;
};

TEST_F(RegistrationWithoutMemory, SaysSoAndLeavesAFileThatCanBeRead) {
    int refused = 0;
    for (std::int64_t n = 1; registerFailingAt(n); ++n) {
        EXPECT_NO_THROW(keys()) << n;
        if (status == 0) continue;
        EXPECT_EQ(status, 0x8007000EU) << n;
        ++refused;
    }
    EXPECT_GT(refused, 0);
}

TEST_F(RegistrationWithoutMemory, ReportsNoFailedWriting) {
    ASSERT_EQ(module.registerServer(), 0);
    const std::size_t all = keys();
    int unwritten = 0;
    for (std::int64_t n = 1; registerFailingAt(n); ++n)
        if (status == 0 && keys() < all) ++unwritten;
    EXPECT_GT(unwritten, 0);
}

TEST_F(RegistrationWithoutMemory, IsMadeUpForByTheNextOne) {
    ASSERT_EQ(module.registerServer(), 0);
    const std::vector<RegistryEntry> whole = RegistryFile::load(file).entries();
    for (std::int64_t n = 1; registerFailingAt(n); ++n) {
        ASSERT_EQ(module.registerServer(), 0) << n;
        // A key that is made up for stands behind those that were there.
        const std::vector<RegistryEntry> got = RegistryFile::load(file).entries();
        ASSERT_TRUE(std::ranges::is_permutation(got, whole)) << n;
    }
}

TEST(RegistryContent, SurvivesACopyForWhichThereIsNoMemory) {
    const std::wstring text(100, L'a');  // longer than what a string holds in itself
    RegistryFile file;
    ASSERT_TRUE(file.create(L"A"));
    ASSERT_TRUE(file.set(L"A", {L"Name", text}) && file.set(L"A", {L"Width", 400U}));
    bool refused = true;
    for (std::int64_t n = 1; refused; ++n) {
        MemoryMeter::failAt(n);
        try {
            const RegistryFile copy = file;
            refused = MemoryMeter::failNoMore();
            EXPECT_TRUE(copy == file);
        } catch (const std::bad_alloc&) {
            MemoryMeter::failNoMore();
        }
        ASSERT_EQ(*file.text(L"A", L"Name"), text) << n;
        ASSERT_EQ(*file.number(L"A", L"Width"), 400U) << n;
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
