#include "plugin/module/portable/registry_file.h"
#include "tests/plugin/module/portable/environment_variable.h"
#include "tests/plugin/module/portable/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Api::RegistryScope;

std::string faultOf(const std::filesystem::path& path) {
    try {
        RegistryFile::load(path);
        return "none";
    } catch (const RegistryFileError& error) {
        return error.what();
    }
}

TEST(RegistryLoad, FileThatDoesNotExistIsEmpty) {
    const TemporaryFolder folder;
    EXPECT_TRUE(RegistryFile::load(folder / "none" / "registry.txt").entries().empty());
}

TEST(RegistryLoad, ReadsAFile) {
    const TemporaryFolder folder;
    writeFile(folder / "r", "Meridax registry, format 1\n[A]\n");
    EXPECT_NE(RegistryFile::load(folder / "r").find(L"A"), nullptr);
}

TEST(RegistryLoad, DamageIsReportedWithPathAndLine) {
    const TemporaryFolder folder;
    writeFile(folder / "r", "Meridax registry, format 1\n\nnonsense\n");
    EXPECT_EQ(faultOf(folder / "r"), (folder / "r").string() + ":3: a quotation mark is missing");
}

TEST(RegistryLoad, FileThatCannotBeOpenedIsReportedInTheWordsOfTheSystem) {
    const TemporaryFolder folder;
    writeFile(folder / "r", "");
    const std::filesystem::path below = folder / "r" / "below";
    EXPECT_EQ(faultOf(below), below.string() + ": Not a directory");
}

TEST(RegistryLoad, FolderIsNoRegistry) {
    const TemporaryFolder folder;
    EXPECT_EQ(faultOf(folder / ""), (folder / "").string() + ": not a regular file");
}

TEST(RegistryLoad, PipeIsNoRegistryAndNobodyWaitsForIt) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(faultOf(folder / "pipe"), (folder / "pipe").string() + ": not a regular file");
}

TEST(RegistryLoad, EndlessDeviceIsNoRegistry) {
    EXPECT_EQ(faultOf("/dev/zero"), "/dev/zero: not a regular file");
}

TEST(RegistryLoad, TooLongAFileIsNotReadToItsEnd) {
    const TemporaryFolder folder;
    writeFile(folder / "r", "");
    std::filesystem::resize_file(folder / "r", std::uintmax_t{1} << 40);
    EXPECT_EQ(faultOf(folder / "r"), (folder / "r").string() + ": longer than a registry may be");
}

TEST(RegistryPath, IsWhereTheVariableOfTheScopeSays) {
    const EnvironmentVariable user("MERIDAX_REGISTRY_USER", "/a/user.txt");
    const EnvironmentVariable machine("MERIDAX_REGISTRY_MACHINE", "/b/machine.txt");
    EXPECT_EQ(registryFilePath(RegistryScope::User), "/a/user.txt");
    EXPECT_EQ(registryFilePath(RegistryScope::Machine), "/b/machine.txt");
}

struct Home {
    std::optional<std::string> configuration;
    std::optional<std::string> home;
    std::string expected;
};

class RegistryPathOfUser : public testing::TestWithParam<Home> {};

TEST_P(RegistryPathOfUser, FollowsTheConfigurationFolder) {
    const EnvironmentVariable moved("MERIDAX_REGISTRY_USER", std::nullopt);
    const EnvironmentVariable configuration("XDG_CONFIG_HOME", GetParam().configuration);
    const EnvironmentVariable home("HOME", GetParam().home);
    EXPECT_EQ(registryFilePath(RegistryScope::User), GetParam().expected);
}

// A relative configuration folder counts as none.
INSTANTIATE_TEST_SUITE_P(Homes, RegistryPathOfUser,
                         testing::Values(Home{"/c", "/h", "/c/meridax/registry.txt"},
                                         Home{"", "/h", "/h/.config/meridax/registry.txt"},
                                         Home{"c", "/h", "/h/.config/meridax/registry.txt"},
                                         Home{{}, "/h", "/h/.config/meridax/registry.txt"},
                                         Home{{}, {}, ""}));

TEST(RegistryPath, OfTheMachineIsBelowEtc) {
    const EnvironmentVariable moved("MERIDAX_REGISTRY_MACHINE", "");
    EXPECT_EQ(registryFilePath(RegistryScope::Machine), "/etc/meridax/registry.txt");
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
