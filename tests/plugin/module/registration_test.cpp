#include "plugin/module/registration.h"

#include "tests/plugin/module/doubles/registry_steps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Steps = std::vector<std::string>;

constexpr const char* ControlKey = R"(SOFTWARE\Meridax\VCs\Rotavue)";
constexpr const char* ClassKey = R"(SOFTWARE\Classes\CLSID\{264200AB-CDA2-4257-932E-FD19E014BD0C})";

class RegistrationTest : public testing::Test {
protected:
    bool made(const std::string& step) const {
        return std::find(store.steps.begin(), store.steps.end(), step) != store.steps.end();
    }

    bool wroteTo(const std::string& scope) const {
        return made("create " + scope + " " + ControlKey) &&
               made("create " + scope + " " + ClassKey);
    }

    RegistrySteps store;
    TypeLibrarySteps library{store.steps};
    ModuleInfo info = rotavueModuleInfo();
    std::wstring path = L"/opt/Rotavue64.vc";
    Registration registration{{store, library, [this] { return info; }, [this] { return path; }}};
};

TEST_F(RegistrationTest, WritesEveryEntryInItsOrder) {
    EXPECT_EQ(registration.registerServer(), 0);
    const std::string control = std::string("machine ") + ControlKey;
    const std::string classKey = std::string("machine ") + ClassKey;
    const Steps expected{
        "create " + control,
        "Name = 'Rotavue'",
        "Vendor = 'Meridax'",
        "Version = '2.1.8'",
        "Description = 'Shows the x-y scope with an option to rotate x and y axis. It is mainly "
        "used for displaying the axis movement in DSA analysis.'",
        "GUID = '{264200AB-CDA2-4257-932E-FD19E014BD0C}'",
        "delete value Icon",
        "MeridaxIcon = 'orbit_graph'",
        "GroupName = 'Machinery diagnostics'",
        "Keywords = 'machinery diagnostics, orbit'",
        "MaxParameters = 8",
        "Width = 400",
        "Height = 300",
        "ExtendOnAdd = 1",
        "DrawPosition = 1",
        "HasUnifiedProps = 1",
        "UseCanvasDrawData = 1",
        "close " + control,
        "create " + classKey,
        " = 'VCPluginImpl class'",
        "create " + classKey + "\\InprocServer32",
        " = '/opt/Rotavue64.vc'",
        "ThreadingModel = 'Apartment'",
        "close " + classKey + "\\InprocServer32",
        "close " + classKey,
        "register library"};
    EXPECT_EQ(store.steps, expected);
}

TEST_F(RegistrationTest, OwnIconDrivesTheHostsIconOut) {
    info.control.icon = "own";
    registration.registerServer();
    const auto icon = std::find(store.steps.begin(), store.steps.end(), "Icon = 'own'");
    ASSERT_NE(icon, store.steps.end());
    EXPECT_EQ(*(icon + 1), "delete value MeridaxIcon");
    EXPECT_FALSE(made("delete value Icon"));
}

TEST_F(RegistrationTest, TextsAreWidenedFromUtf8) {
    info.control.groupName = "Wellen \xC2\xB5m \xF0\x9F\x98\x80";
    registration.registerServer();
    EXPECT_TRUE(made("GroupName = 'Wellen \xC2\xB5m \xF0\x9F\x98\x80'"));
}

TEST_F(RegistrationTest, TextThatIsNoUtf8Raises) {
    info.control.groupName = "\xFF";
    EXPECT_THROW(registration.registerServer(), std::range_error);
}

TEST_F(RegistrationTest, FlagsAreWrittenAsZeroOrOne) {
    info.control.extendOnAdd = false;
    info.control.hasUnifiedProps = false;
    registration.registerServer();
    EXPECT_TRUE(made("ExtendOnAdd = 0"));
    EXPECT_TRUE(made("HasUnifiedProps = 0"));
    EXPECT_TRUE(made("DrawPosition = 1"));
}

TEST_F(RegistrationTest, ModulePathIsCutAt2048Characters) {
    path = std::wstring(2049, L'x');
    registration.registerServer();
    EXPECT_TRUE(made(" = '" + std::string(2048, 'x') + "'"));
}

TEST_F(RegistrationTest, ControlKeyThatCannotBeCreatedIsPassedOverInSilence) {
    store.refused = {std::string("machine ") + ControlKey};
    EXPECT_EQ(registration.registerServer(), 0);
    EXPECT_FALSE(made("Name = 'Rotavue'"));
    EXPECT_TRUE(made(" = 'VCPluginImpl class'"));
}

TEST_F(RegistrationTest, ClassKeyThatCannotBeCreatedEndsTheWriting) {
    store.refused = {std::string("machine ") + ClassKey};
    EXPECT_EQ(registration.registerServer(), 0);
    EXPECT_FALSE(made(" = 'VCPluginImpl class'"));
    EXPECT_EQ(store.steps.back(), "register library");
}

TEST_F(RegistrationTest, SubKeyThatCannotBeCreatedLeavesTheClassKey) {
    store.refused = {std::string("machine ") + ClassKey + "\\InprocServer32"};
    EXPECT_EQ(registration.registerServer(), 0);
    EXPECT_TRUE(made(" = 'VCPluginImpl class'"));
    EXPECT_FALSE(made("ThreadingModel = 'Apartment'"));
}

TEST_F(RegistrationTest, FailedValuesAreIgnored) {
    store.valuesFail = true;
    EXPECT_EQ(registration.registerServer(), 0);
    EXPECT_TRUE(made("UseCanvasDrawData = 1"));
    EXPECT_TRUE(made("ThreadingModel = 'Apartment'"));
}

struct CommandLine {
    const wchar_t* text;
    bool choosesUser;
};

class RegistrationScope : public RegistrationTest,
                          public testing::WithParamInterface<CommandLine> {};

TEST_P(RegistrationScope, IsTheUsersForThatOneWordOnly) {
    EXPECT_EQ(registration.install(true, GetParam().text), 0);
    EXPECT_TRUE(wroteTo(GetParam().choosesUser ? "user" : "machine"));
    EXPECT_FALSE(wroteTo(GetParam().choosesUser ? "machine" : "user"));
    EXPECT_EQ(store.steps.back(),
              GetParam().choosesUser ? "register library for the user" : "register library");
}

INSTANTIATE_TEST_SUITE_P(CommandLines, RegistrationScope,
                         testing::Values(CommandLine{L"user", true}, CommandLine{L"USER", true},
                                         CommandLine{L"uSeR", true}, CommandLine{nullptr, false},
                                         CommandLine{L"", false}, CommandLine{L"use", false},
                                         CommandLine{L"users", false}, CommandLine{L"user ", false},
                                         CommandLine{L" user", false},
                                         CommandLine{L"u\u017Fer", false}));

TEST_F(RegistrationTest, RegisteringAfterUserStaysInTheUsersHalf) {
    registration.install(true, L"user");
    store.steps.clear();
    registration.registerServer();
    EXPECT_TRUE(wroteTo("user"));
}

TEST_F(RegistrationTest, OtherCommandLineLeavesTheUsersHalfChosen) {
    registration.install(true, L"user");
    store.steps.clear();
    registration.install(true, L"machine");
    EXPECT_TRUE(wroteTo("user"));
}

TEST_F(RegistrationTest, RemovalDeletesTheControlKeyThenTheClassKey) {
    library.unregisterStatus = 5;
    EXPECT_EQ(registration.unregisterServer(), 5);
    EXPECT_EQ(store.steps,
              (Steps{std::string("delete machine ") + ControlKey,
                     std::string("delete machine ") + ClassKey, "unregister library"}));
}

TEST_F(RegistrationTest, RemovalFollowsTheLastRegistration) {
    registration.install(true, L"user");
    store.steps.clear();
    registration.unregisterServer();
    EXPECT_EQ(store.steps.front(), std::string("delete user ") + ControlKey);
}

TEST_F(RegistrationTest, RemovalForTheUserInAFreshProcessUsesTheMachinesHalf) {
    EXPECT_EQ(registration.install(false, L"user"), 0);
    EXPECT_EQ(store.steps, (Steps{std::string("delete machine ") + ControlKey,
                                  std::string("delete machine ") + ClassKey,
                                  "unregister library for the user"}));
}

TEST_F(RegistrationTest, RemovalForTheUserAfterAMachinesRegistrationUsesTheMachinesHalf) {
    registration.registerServer();
    store.steps.clear();
    registration.install(false, L"user");
    EXPECT_EQ(store.steps.front(), std::string("delete machine ") + ControlKey);
}

TEST_F(RegistrationTest, FailedLibraryIsRemovedAgainAndTheFirstFailureGiven) {
    library.registerStatus = static_cast<std::int32_t>(0x80004005U);
    library.unregisterStatus = static_cast<std::int32_t>(0x80004004U);
    EXPECT_EQ(registration.install(true, nullptr), library.registerStatus);
    EXPECT_TRUE(made(std::string("delete machine ") + ControlKey));
    EXPECT_EQ(store.steps.back(), "unregister library");
}

TEST_F(RegistrationTest, EntriesWrittenHalfWayAreRemovedAgain) {
    store.exhaustedAt = "GroupName = 'Machinery diagnostics'";
    EXPECT_EQ(registration.install(true, L"user"), static_cast<std::int32_t>(0x8007000EU));
    ASSERT_TRUE(made("MeridaxIcon = 'orbit_graph'"));
    EXPECT_EQ(
        Steps(store.steps.end() - 4, store.steps.end()),
        (Steps{std::string("close user ") + ControlKey, std::string("delete user ") + ControlKey,
               std::string("delete user ") + ClassKey, "unregister library for the user"}));
}

TEST_F(RegistrationTest, FirstFailureIsGivenWhereTheRemovalRaisesAsWell) {
    library.registerStatus = static_cast<std::int32_t>(0x80004005U);
    store.exhaustedAt = std::string("delete machine ") + ControlKey;
    EXPECT_EQ(registration.install(true, nullptr), library.registerStatus);
}

TEST_F(RegistrationTest, PositiveStatusOfTheLibraryIsASuccess) {
    library.registerStatus = 1;
    EXPECT_EQ(registration.install(true, nullptr), 1);
    EXPECT_EQ(store.steps.back(), "register library");
}

TEST_F(RegistrationTest, RegisteringAloneRemovesNothingWhenTheLibraryFails) {
    library.registerStatus = static_cast<std::int32_t>(0x80004005U);
    EXPECT_EQ(registration.registerServer(), library.registerStatus);
    EXPECT_EQ(store.steps.back(), "register library");
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
