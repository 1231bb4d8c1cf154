#include "tests/cli/command_test.h"

namespace Rotavue::Cli {

namespace {

using Names = std::vector<std::string>;

constexpr const char* ControlKey = "[SOFTWARE\\Meridax\\VCs\\Rotavue]\n";
constexpr const char* ClassKey =
    "[SOFTWARE\\Classes\\CLSID\\{264200AB-CDA2-4257-932E-FD19E014BD0C}]\n"
    "@ = text \"VCPluginImpl class\"\n";
constexpr const char* ServerKey =
    "[SOFTWARE\\Classes\\CLSID\\{264200AB-CDA2-4257-932E-FD19E014BD0C}\\InprocServer32]\n";

class RegistryTest : public CommandTest {
protected:
    RegistryTest() {
        setVariable("MERIDAX_REGISTRY_USER", at("user").string());
        setVariable("MERIDAX_REGISTRY_MACHINE", at("machine").string());
    }

    bool announces(std::string_view file) const {
        return read(file).find(ControlKey) != std::string::npos;
    }
};

TEST_F(RegistryTest, RegisterAnnouncesToAllUsers) {
    const ProcessEnd end = rotavue({"register"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.out, "");
    EXPECT_EQ(end.error, "registered for all users: " + moduleFile() + '\n');
    EXPECT_FALSE(std::filesystem::exists(at("user")));
    EXPECT_TRUE(announces("machine"));
    const std::string text = read("machine");
    EXPECT_NE(text.find(ClassKey), std::string::npos) << text;
    EXPECT_NE(text.find(ServerKey + std::string("@ = text \"") + moduleFile() + "\"\n"),
              std::string::npos)
        << text;
}

TEST_F(RegistryTest, RegisterUserAnnouncesToOneUserAlone) {
    const ProcessEnd end = rotavue({"register", "--user"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "registered for this user: " + moduleFile() + '\n');
    EXPECT_TRUE(announces("user"));
    EXPECT_FALSE(std::filesystem::exists(at("machine")));
}

TEST_F(RegistryTest, UsersHalfLiesInTheConfigurationFolder) {
    setVariable("MERIDAX_REGISTRY_USER", "");
    setVariable("XDG_CONFIG_HOME", at("configuration").string());
    EXPECT_EQ(rotavue({"register", "--user"}).status, 0);
    EXPECT_TRUE(announces("configuration/meridax/registry.txt"));
}

TEST_F(RegistryTest, RegisteringTwiceChangesNothing) {
    ASSERT_EQ(rotavue({"register"}).status, 0);
    const std::string first = read("machine");
    EXPECT_EQ(rotavue({"register"}).status, 0);
    EXPECT_EQ(read("machine"), first);
}

// The class key stays behind on purpose: it is deleted while it has a sub-key, which a registry
// refuses.
TEST_F(RegistryTest, UnregisterTakesTheAnnouncementAndLeavesTheClassKey) {
    for (const auto& [file, options] :
         {std::pair<std::string, Names>{"machine", {}}, {"user", {"--user"}}}) {
        Names arguments{"register"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        ASSERT_EQ(rotavue(arguments).status, 0);
        arguments.front() = "unregister";
        const ProcessEnd end = rotavue(arguments);
        EXPECT_EQ(end.status, 0);
        EXPECT_NE(end.error.find("the class key stays"), std::string::npos) << end.error;
        EXPECT_NE(end.error.find(at(file).string()), std::string::npos) << end.error;
        EXPECT_FALSE(announces(file));
        EXPECT_NE(read(file).find(ClassKey), std::string::npos);
        EXPECT_NE(read(file).find(ServerKey), std::string::npos);
    }
}

TEST_F(RegistryTest, UnregisterOfOneHalfLeavesTheOther) {
    ASSERT_EQ(rotavue({"register"}).status, 0);
    ASSERT_EQ(rotavue({"register", "--user"}).status, 0);
    ASSERT_EQ(rotavue({"unregister", "--user"}).status, 0);
    EXPECT_FALSE(announces("user"));
    EXPECT_TRUE(announces("machine"));
}

TEST_F(RegistryTest, UnregisterWithoutAnAnnouncementSaysSo) {
    const ProcessEnd end = rotavue({"unregister", "--user"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "not registered for this user: nothing to remove\n");
    EXPECT_EQ(names(), Names{});
}

TEST_F(RegistryTest, DamagedRegistryIsReportedAndKept) {
    write("user", "no registry at all\n");
    for (const char* command : {"register", "unregister"}) {
        const ProcessEnd end = rotavue({command, "--user"});
        EXPECT_EQ(end.status, 1) << command;
        EXPECT_NE(end.error.find(at("user").string()), std::string::npos) << end.error;
        EXPECT_EQ(std::count(end.error.begin(), end.error.end(), '\n'), 1) << end.error;
        EXPECT_EQ(read("user"), "no registry at all\n");
    }
}

TEST_F(RegistryTest, PlaceThatTakesNoRegistryFails) {
    setVariable("MERIDAX_REGISTRY_MACHINE", "/proc/none/registry");
    const ProcessEnd end = rotavue({"register"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "rotavue register: /proc/none/registry: the registry was not changed: it cannot be "
              "written; run as root, or register with --user\n");
}

TEST_F(RegistryTest, ModuleThatIsNoneFailsAndAnnouncesNothing) {
    write("no.vc", "no library");
    const ProcessEnd end = rotavue({"register", "--user", "--module", "no.vc"});
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.error.find("no.vc"), std::string::npos) << end.error;
    EXPECT_EQ(names(), Names{"no.vc"});
}

// Registry texts are wide; the way back to a path must not depend on the locale.
TEST_F(RegistryTest, FolderNeedsNoPlainLetters) {
    std::filesystem::create_directory(at("Pr\u00FCfstand"));
    std::filesystem::copy_file(moduleFile(), at("Pr\u00FCfstand/Rotavue64.vc"));
    const ProcessEnd end =
        rotavue({"register", "--user", "--module", "Pr\u00FCfstand/Rotavue64.vc"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(end.error,
              "registered for this user: " + at("Pr\u00FCfstand/Rotavue64.vc").string() + '\n');
    EXPECT_EQ(rotavue({"unregister", "--user"}).status, 0);
    EXPECT_FALSE(announces("user"));
}

}  // namespace

}  // namespace Rotavue::Cli
