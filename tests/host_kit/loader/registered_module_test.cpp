#include "host_kit/loader/module.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace Rotavue::HostKit {
namespace {

namespace fs = std::filesystem;

constexpr const char* ClassId = "{264200AB-CDA2-4257-932E-FD19E014BD0C}";

/// A registry of the test's own, each half in a file.
class RegisteredModule : public testing::Test {
protected:
    RegisteredModule() {
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        setenv("MERIDAX_REGISTRY_USER", (folder_ / "user").c_str(), 1);
        setenv("MERIDAX_REGISTRY_MACHINE", (folder_ / "machine").c_str(), 1);
    }

    ~RegisteredModule() override {
        unsetenv("MERIDAX_REGISTRY_USER");
        unsetenv("MERIDAX_REGISTRY_MACHINE");
        fs::remove_all(folder_);
    }

    void write(const std::string& half, const std::string& entries) const {
        std::ofstream(folder_ / half) << "Meridax registry, format 1\n\n" << entries;
    }

    static std::string announcement() {
        return std::string("[SOFTWARE\\Meridax\\VCs\\Rotavue]\n\"GUID\" = text \"") + ClassId +
               "\"\n\n";
    }

    static std::string classKey(const std::string& file) {
        return std::string("[SOFTWARE\\Classes\\CLSID\\") + ClassId +
               "\\InprocServer32]\n@ = text \"" + file + "\"\n";
    }

    static std::string refusal() {
        try {
            chooseModule(std::nullopt);
            return "found";
        } catch (const LoadError& error) {
            return error.what();
        }
    }

    const fs::path folder_ = fs::path(testing::TempDir()) / "rotavue_registered_module";
};

TEST_F(RegisteredModule, IsTheOneThatTheAnnouncementLeadsTo) {
    write("machine", announcement() + classKey("/opt/machine.vc"));
    EXPECT_EQ(chooseModule(std::nullopt).file, "/opt/machine.vc");
}

TEST_F(RegisteredModule, MayLieInAFolderOfAnyName) {
    write("machine", announcement() + classKey("/opt/M\u00E4dchen \u4E2D/machine.vc"));
    EXPECT_EQ(chooseModule(std::nullopt).file, "/opt/M\u00E4dchen \u4E2D/machine.vc");
}

TEST_F(RegisteredModule, OfTheUserComesBeforeThatOfTheMachine) {
    write("machine", announcement() + classKey("/opt/machine.vc"));
    write("user", announcement() + classKey("/home/user.vc"));
    EXPECT_EQ(chooseModule(std::nullopt).file, "/home/user.vc");
}

TEST_F(RegisteredModule, MayHaveItsTwoKeysInDifferentHalves) {
    write("machine", announcement());
    write("user", classKey("/home/user.vc"));
    EXPECT_EQ(chooseModule(std::nullopt).file, "/home/user.vc");
}

TEST_F(RegisteredModule, GivesWayToOneThatIsNamed) {
    write("user", announcement() + classKey("/home/user.vc"));
    EXPECT_EQ(chooseModule(fs::path("named.vc")).file, "named.vc");
}

TEST_F(RegisteredModule, IsTheOneBesideTheProgramWhereNoneIsAnnounced) {
    EXPECT_EQ(chooseModule(std::nullopt).file, programFolder() / "Rotavue64.vc");
    write("user", classKey("/home/left_behind.vc"));
    EXPECT_EQ(chooseModule(std::nullopt).file, programFolder() / "Rotavue64.vc");
}

TEST_F(RegisteredModule, MustHaveAFile) {
    write("user", announcement());
    EXPECT_EQ(refusal(), "the registry key SOFTWARE\\Classes\\CLSID\\" + std::string(ClassId) +
                             "\\InprocServer32 names no module");
}

TEST_F(RegisteredModule, IsNotLookedForInADamagedRegistry) {
    write("machine", "nonsense\n");
    const std::string line = refusal();
    EXPECT_NE(line.find((folder_ / "machine").string() + ":3"), std::string::npos) << line;
}

}  // namespace
}  // namespace Rotavue::HostKit
