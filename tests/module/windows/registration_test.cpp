#include "tests/module/windows/loaded_module.h"
#include "tests/module/windows/registry_view.h"

#include <gtest/gtest.h>

#include <optional>

/// What the built module writes to the real registry and takes from it.
namespace Rotavue::ModuleTest {
namespace {

const std::wstring ControlKey = LR"(SOFTWARE\Meridax\VCs\Rotavue)";
const std::wstring ClassKey = LR"(SOFTWARE\Classes\CLSID\{264200AB-CDA2-4257-932E-FD19E014BD0C})";
const std::wstring LibraryKey =
    LR"(SOFTWARE\Classes\TypeLib\{32E46A55-902E-4BC0-817F-528EE53F499C})";

class Registration : public testing::Test {
protected:
    Registration() { clean(); }
    ~Registration() override { clean(); }

    static void clean() {
        for (HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
            for (const std::wstring& key : {ControlKey, ClassKey, LibraryKey})
                deleteTree(root, key);
    }

    static std::wstring fileOf(const LoadedModule& module) {
        wchar_t path[MAX_PATH] = {};
        ::GetModuleFileNameW(module.handle(), path, MAX_PATH);
        return path;
    }

    static bool isAnnouncedTo(HKEY root) { return hasKey(root, ControlKey); }

    static std::wstring announced(const std::wstring& name) {
        return storedValue(HKEY_LOCAL_MACHINE, ControlKey, name).value_or(StoredValue{}).text;
    }
};

struct Text {
    std::wstring name;
    std::wstring content;
};

const std::vector<Text> Texts{
    {L"Name", L"Rotavue"},
    {L"Vendor", L"Meridax"},
    {L"Version", L"2.1.8"},
    {L"Description",
     L"Shows the x-y scope with an option to rotate x and y axis. It is mainly used for displaying "
     L"the axis movement in DSA analysis."},
    {L"GUID", L"{264200AB-CDA2-4257-932E-FD19E014BD0C}"},
    {L"MeridaxIcon", L"orbit_graph"},
    {L"GroupName", L"Machinery diagnostics"},
    {L"Keywords", L"machinery diagnostics, orbit"}};

TEST_F(Registration, WritesEveryTextOfTheAnnouncement) {
    ASSERT_EQ(LoadedModule().registerServer(), S_OK);
    for (const Text& text : Texts) {
        const auto value = storedValue(HKEY_LOCAL_MACHINE, ControlKey, text.name);
        ASSERT_TRUE(value.has_value());
        EXPECT_EQ(value->type, static_cast<DWORD>(REG_SZ));
        EXPECT_EQ(value->text, text.content);
    }
}

TEST_F(Registration, StoresTwoBytesForEachCharacterOfATextAndNoTerminator) {
    LoadedModule().registerServer();
    const std::wstring server = ClassKey + LR"(\InprocServer32)";
    std::vector<std::pair<std::wstring, std::wstring>> stored{
        {ClassKey, L""}, {server, L""}, {server, L"ThreadingModel"}};
    for (const Text& text : Texts)
        stored.emplace_back(ControlKey, text.name);
    for (const auto& [key, name] : stored) {
        const auto value = storedValue(HKEY_LOCAL_MACHINE, key, name);
        EXPECT_EQ(value->bytes, 2 * value->text.size());
    }
}

TEST_F(Registration, WritesEveryNumberOfTheAnnouncement) {
    LoadedModule().registerServer();
    const std::vector<std::pair<std::wstring, DWORD>> numbers{
        {L"MaxParameters", 8},    {L"Width", 400},      {L"Height", 300},
        {L"ExtendOnAdd", 1},      {L"DrawPosition", 1}, {L"HasUnifiedProps", 1},
        {L"UseCanvasDrawData", 1}};
    for (const auto& [name, number] : numbers) {
        const auto value = storedValue(HKEY_LOCAL_MACHINE, ControlKey, name);
        ASSERT_TRUE(value.has_value());
        EXPECT_EQ(value->type, static_cast<DWORD>(REG_DWORD));
        EXPECT_EQ(value->number, number);
    }
    EXPECT_EQ(valueCount(HKEY_LOCAL_MACHINE, ControlKey), Texts.size() + numbers.size());
}

TEST_F(Registration, WritesTheClassWithItsFileAndThreadingModel) {
    LoadedModule().registerServer();
    EXPECT_EQ(storedValue(HKEY_LOCAL_MACHINE, ClassKey, L"")->text, L"VCPluginImpl class");
    const std::wstring server = ClassKey + LR"(\InprocServer32)";
    const std::wstring file = storedValue(HKEY_LOCAL_MACHINE, server, L"")->text;
    EXPECT_EQ(file, fileOf(LoadedModule()));
    EXPECT_TRUE(file.ends_with(L"\\Rotavue64.vc"));
    EXPECT_EQ(storedValue(HKEY_LOCAL_MACHINE, server, L"ThreadingModel")->text, L"Apartment");
}

TEST_F(Registration, EmptyIconRemovesTheOneOfAnEarlierRegistration) {
    putText(HKEY_LOCAL_MACHINE, ControlKey, L"Icon", L"another");
    putText(HKEY_LOCAL_MACHINE, ControlKey, L"MeridaxIcon", L"another");
    LoadedModule().registerServer();
    EXPECT_FALSE(storedValue(HKEY_LOCAL_MACHINE, ControlKey, L"Icon").has_value());
    EXPECT_EQ(announced(L"MeridaxIcon"), L"orbit_graph");
}

struct Word {
    const char* name;
    const wchar_t* commandLine;
    bool isUser;
};

class InstallWord : public Registration, public testing::WithParamInterface<Word> {};

TEST_P(InstallWord, ChoosesTheHive) {
    ASSERT_EQ(LoadedModule().install(true, GetParam().commandLine), S_OK);
    EXPECT_EQ(isAnnouncedTo(HKEY_CURRENT_USER), GetParam().isUser);
    EXPECT_EQ(isAnnouncedTo(HKEY_LOCAL_MACHINE), !GetParam().isUser);
    EXPECT_EQ(hasKey(HKEY_CURRENT_USER, ClassKey), GetParam().isUser);
}

INSTANTIATE_TEST_SUITE_P(Words, InstallWord,
                         testing::Values(Word{"Lower", L"user", true}, Word{"Upper", L"USER", true},
                                         Word{"Mixed", L"uSeR", true},
                                         Word{"Longer", L"users", false},
                                         Word{"Shorter", L"use", false},
                                         Word{"Behind", L" user", false}, Word{"Empty", L"", false},
                                         Word{"None", nullptr, false}),
                         [](const auto& parameter) { return parameter.param.name; });

TEST_F(Registration, StaysWithTheUserOnceTheWordWasGiven) {
    const LoadedModule module;
    module.install(true, L"user");
    clean();
    module.registerServer();
    EXPECT_TRUE(isAnnouncedTo(HKEY_CURRENT_USER));
    EXPECT_FALSE(isAnnouncedTo(HKEY_LOCAL_MACHINE));
    clean();
    module.install(true, L"users");
    EXPECT_TRUE(isAnnouncedTo(HKEY_CURRENT_USER));
}

TEST_F(Registration, ForgetsTheWordWithTheModule) {
    LoadedModule().install(true, L"user");
    LoadedModule().registerServer();
    EXPECT_TRUE(isAnnouncedTo(HKEY_LOCAL_MACHINE));
}

TEST_F(Registration, RemovalLeavesTheClassKeyWithItsSubKeyBehind) {
    const LoadedModule module;
    module.registerServer();
    EXPECT_EQ(module.unregisterServer(), S_OK);
    EXPECT_FALSE(isAnnouncedTo(HKEY_LOCAL_MACHINE));
    EXPECT_TRUE(hasKey(HKEY_LOCAL_MACHINE, ClassKey));
    EXPECT_TRUE(hasKey(HKEY_LOCAL_MACHINE, ClassKey + LR"(\InprocServer32)"));
}

TEST_F(Registration, RemovalFollowsTheLastRegistrationOfTheProcess) {
    LoadedModule().registerServer();
    const LoadedModule module;
    module.install(true, L"user");
    module.unregisterServer();
    EXPECT_FALSE(isAnnouncedTo(HKEY_CURRENT_USER));
    EXPECT_TRUE(isAnnouncedTo(HKEY_LOCAL_MACHINE));
}

TEST_F(Registration, RemovalForTheUserGoesToTheMachineWhereNothingWasRegistered) {
    LoadedModule().registerServer();
    LoadedModule().install(true, L"user");
    LoadedModule().install(false, L"user");
    EXPECT_TRUE(isAnnouncedTo(HKEY_CURRENT_USER));
    EXPECT_FALSE(isAnnouncedTo(HKEY_LOCAL_MACHINE));
}

TEST_F(Registration, TypeLibraryComesAndGoes) {
    const LoadedModule module;
    EXPECT_FALSE(hasKey(HKEY_LOCAL_MACHINE, LibraryKey));
    module.registerServer();
    const auto file = storedValue(HKEY_LOCAL_MACHINE, LibraryKey + LR"(\1.0\0\win64)", L"");
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file->text, fileOf(module));
    EXPECT_EQ(module.unregisterServer(), S_OK);
    EXPECT_FALSE(hasKey(HKEY_LOCAL_MACHINE, LibraryKey + LR"(\1.0\0\win64)"));
}

// The status is that of the type library alone: there is none to take away.
TEST_F(Registration, RemovalOfNothingTellsTheTypeLibrarysFailure) {
    EXPECT_LT(LoadedModule().unregisterServer(), 0);
}

}  // namespace
}  // namespace Rotavue::ModuleTest
