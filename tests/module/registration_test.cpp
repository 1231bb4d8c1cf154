#include "plugin/framework/unicode.h"
#include "plugin/module/portable/registry_file.h"
#include "tests/module/loaded_module.h"
#include "tests/plugin/module/portable/environment_variable.h"
#include "tests/plugin/module/portable/temporary_folder.h"

#include <gtest/gtest.h>

/// Registration by the built module, each case with the module loaded anew and files of its own.
namespace Rotavue::ModuleTest {
namespace {

using Meridax::VisualControls::Rotavue::EnvironmentVariable;
using Meridax::VisualControls::Rotavue::readFile;
using Meridax::VisualControls::Rotavue::RegistryFile;
using Meridax::VisualControls::Rotavue::TemporaryFolder;
using Meridax::VisualControls::Rotavue::writeFile;

constexpr const wchar_t* ControlKey = LR"(SOFTWARE\Meridax\VCs\Rotavue)";
constexpr const wchar_t* ClassKey =
    LR"(SOFTWARE\Classes\CLSID\{264200AB-CDA2-4257-932E-FD19E014BD0C})";
constexpr const wchar_t* ServerKey =
    LR"(SOFTWARE\Classes\CLSID\{264200AB-CDA2-4257-932E-FD19E014BD0C}\InprocServer32)";

class ModuleRegistration : public testing::Test {
protected:
    ModuleRegistration() { EXPECT_FALSE(isModuleLoaded()); }

    RegistryFile user() const { return RegistryFile::load(userFile); }
    RegistryFile machine() const { return RegistryFile::load(machineFile); }

    TemporaryFolder folder;
    std::filesystem::path userFile = folder / "home/.config/meridax/registry.txt";
    std::filesystem::path machineFile = folder / "etc/meridax/registry.txt";
    EnvironmentVariable userVariable{"MERIDAX_REGISTRY_USER", userFile.string()};
    EnvironmentVariable machineVariable{"MERIDAX_REGISTRY_MACHINE", machineFile.string()};
};

TEST_F(ModuleRegistration, WritesTheFileThatHostsRead) {
    EXPECT_EQ(LoadedModule().registerServer(), 0);
    const std::string expected =
        "Meridax registry, format 1\n"
        "\n"
        "[SOFTWARE\\Meridax\\VCs\\Rotavue]\n"
        "\"Name\" = text \"Rotavue\"\n"
        "\"Vendor\" = text \"Meridax\"\n"
        "\"Version\" = text \"2.1.8\"\n"
        "\"Description\" = text \"Shows the x-y scope with an option to rotate x and y axis. It is "
        "mainly used for displaying the axis movement in DSA analysis.\"\n"
        "\"GUID\" = text \"{264200AB-CDA2-4257-932E-FD19E014BD0C}\"\n"
        "\"MeridaxIcon\" = text \"orbit_graph\"\n"
        "\"GroupName\" = text \"Machinery diagnostics\"\n"
        "\"Keywords\" = text \"machinery diagnostics, orbit\"\n"
        "\"MaxParameters\" = number 8\n"
        "\"Width\" = number 400\n"
        "\"Height\" = number 300\n"
        "\"ExtendOnAdd\" = number 1\n"
        "\"DrawPosition\" = number 1\n"
        "\"HasUnifiedProps\" = number 1\n"
        "\"UseCanvasDrawData\" = number 1\n"
        "\n"
        "[SOFTWARE\\Classes\\CLSID\\{264200AB-CDA2-4257-932E-FD19E014BD0C}]\n"
        "@ = text \"VCPluginImpl class\"\n"
        "\n"
        "[SOFTWARE\\Classes\\CLSID\\{264200AB-CDA2-4257-932E-FD19E014BD0C}\\InprocServer32]\n"
        "@ = text \"" ROTAVUE_MODULE_FILE
        "\"\n"
        "\"ThreadingModel\" = text \"Apartment\"\n";
    EXPECT_EQ(readFile(machineFile), expected);
    EXPECT_FALSE(std::filesystem::exists(userFile));
}

struct CommandLine {
    const wchar_t* text;
    bool choosesUser;
};

class InstallCommand : public ModuleRegistration,
                       public testing::WithParamInterface<CommandLine> {};

TEST_P(InstallCommand, ChoosesTheHalfOfTheRegistry) {
    EXPECT_EQ(LoadedModule().install(true, GetParam().text), 0);
    EXPECT_EQ(user().find(ControlKey) != nullptr, GetParam().choosesUser);
    EXPECT_EQ(machine().find(ControlKey) != nullptr, !GetParam().choosesUser);
}

INSTANTIATE_TEST_SUITE_P(Words, InstallCommand,
                         testing::Values(CommandLine{L"USER", true}, CommandLine{L"user", true},
                                         CommandLine{L"users", false}, CommandLine{L"", false},
                                         CommandLine{nullptr, false}));

TEST_F(ModuleRegistration, RegisteringAfterAnInstallationForTheUserStaysTheUsers) {
    const LoadedModule module;
    module.install(true, L"user");
    std::filesystem::remove(userFile);
    EXPECT_EQ(module.registerServer(), 0);
    EXPECT_NE(user().find(ControlKey), nullptr);
    EXPECT_FALSE(std::filesystem::exists(machineFile));
}

TEST_F(ModuleRegistration, ModuleThatIsLoadedAnewStartsWithTheMachine) {
    LoadedModule().install(true, L"user");
    LoadedModule().registerServer();
    EXPECT_NE(machine().find(ControlKey), nullptr);
}

TEST_F(ModuleRegistration, RemovalTakesTheControlKeyAndLeavesTheClassKey) {
    const LoadedModule module;
    module.registerServer();
    EXPECT_EQ(module.unregisterServer(), 0);
    EXPECT_EQ(machine().find(ControlKey), nullptr);
    EXPECT_NE(machine().find(ClassKey), nullptr);
    EXPECT_NE(machine().text(ServerKey, L""), nullptr);
}

TEST_F(ModuleRegistration, RemovalForTheUserInAFreshModuleTouchesTheMachinesHalf) {
    LoadedModule().install(true, L"user");
    LoadedModule().install(true, nullptr);
    EXPECT_EQ(LoadedModule().install(false, L"user"), 0);
    EXPECT_NE(user().find(ControlKey), nullptr);
    EXPECT_EQ(machine().find(ControlKey), nullptr);
}

TEST_F(ModuleRegistration, RemovalForTheUserAfterTheUsersInstallationTakesIt) {
    const LoadedModule module;
    module.install(true, L"user");
    EXPECT_EQ(module.install(false, nullptr), 0);
    EXPECT_EQ(user().find(ControlKey), nullptr);
    EXPECT_NE(user().find(ClassKey), nullptr);
}

TEST_F(ModuleRegistration, RegisteringTwiceChangesNothing) {
    const LoadedModule module;
    module.registerServer();
    const std::string once = readFile(machineFile);
    module.registerServer();
    EXPECT_EQ(readFile(machineFile), once);
}

TEST_F(ModuleRegistration, OtherControlsEntriesStay) {
    std::filesystem::create_directories(machineFile.parent_path());
    writeFile(
        machineFile,
        "Meridax registry, format 1\n[SOFTWARE\\Meridax\\VCs\\Other]\n\"Width\" = number 7\n");
    const LoadedModule module;
    module.registerServer();
    module.unregisterServer();
    ASSERT_NE(machine().number(LR"(SOFTWARE\Meridax\VCs\Other)", L"Width"), nullptr);
}

TEST_F(ModuleRegistration, DamagedFileIsNotOverwrittenAndNotReported) {
    std::filesystem::create_directories(machineFile.parent_path());
    writeFile(machineFile, "Meridax registry, format 1\nWidth: 400\n");
    EXPECT_EQ(LoadedModule().registerServer(), 0);
    EXPECT_EQ(readFile(machineFile), "Meridax registry, format 1\nWidth: 400\n");
}

TEST_F(ModuleRegistration, FileThatIsMovedRegistersItsNewPlace) {
    const std::filesystem::path moved = folder / "m\u00F6ved.vc";
    std::filesystem::copy_file(ROTAVUE_MODULE_FILE, moved);
    EXPECT_EQ(LoadedModule(moved.c_str()).registerServer(), 0);
    ASSERT_NE(machine().text(ServerKey, L""), nullptr);
    EXPECT_EQ(Api::utf8FromWide(*machine().text(ServerKey, L"")), moved.native());
}

TEST_F(ModuleRegistration, PathIsTheOneAtLoadWhereverTheProcessWentSince) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::copy_file(ROTAVUE_MODULE_FILE, folder / "copy.vc");
    std::filesystem::current_path(folder / "");
    {
        const LoadedModule module("./copy.vc");
        std::filesystem::current_path(before);
        module.registerServer();
    }
    ASSERT_NE(machine().text(ServerKey, L""), nullptr);
    EXPECT_EQ(Api::utf8FromWide(*machine().text(ServerKey, L"")), (folder / "copy.vc").native());
}

TEST_F(ModuleRegistration, FileNameThatIsNoTextIsAFailure) {
    const std::filesystem::path odd = folder / "\xFF.vc";
    std::filesystem::copy_file(ROTAVUE_MODULE_FILE, odd);
    EXPECT_EQ(static_cast<std::uint32_t>(LoadedModule(odd.c_str()).registerServer()), 0x80004005U);
    EXPECT_EQ(machine().text(ServerKey, L""), nullptr);
}

TEST_F(ModuleRegistration, PlaceThatCannotBeWrittenIsNotReported) {
    const EnvironmentVariable nowhere("MERIDAX_REGISTRY_MACHINE", "/dev/null/registry.txt");
    EXPECT_EQ(LoadedModule().registerServer(), 0);
}

}  // namespace
}  // namespace Rotavue::ModuleTest
