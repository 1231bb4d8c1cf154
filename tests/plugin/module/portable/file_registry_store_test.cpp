#include "plugin/module/portable/file_registry_store.h"

#include "plugin/module/portable/file_lock.h"
#include "tests/plugin/module/portable/full_disk.h"
#include "tests/plugin/module/portable/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Api::RegistryScope;
using std::chrono::milliseconds;

constexpr milliseconds ShortWait{30};

class FileRegistryStoreTest : public testing::Test {
protected:
    std::filesystem::path fileOf(RegistryScope scope) const {
        return folder /
               (scope == RegistryScope::User ? "user/registry.txt" : "machine/registry.txt");
    }

    RegistryFile read(RegistryScope scope = RegistryScope::User) const {
        return RegistryFile::load(fileOf(scope));
    }

    TemporaryFolder folder;
    std::filesystem::path user = fileOf(RegistryScope::User);
    FileRegistryStore store{[this](RegistryScope scope) { return fileOf(scope); }, ShortWait};
};

TEST_F(FileRegistryStoreTest, ClosedKeyIsInTheFileOfItsScope) {
    store.createKey(RegistryScope::User, L"A")->setText(L"Name", L"Rotavue");
    store.createKey(RegistryScope::Machine, L"B")->setNumber(L"Width", 400);
    ASSERT_NE(read().text(L"A", L"Name"), nullptr);
    EXPECT_EQ(read().find(L"B"), nullptr);
    EXPECT_EQ(*read(RegistryScope::Machine).number(L"B", L"Width"), 400U);
}

TEST_F(FileRegistryStoreTest, NothingIsInTheFileUntilTheLastKeyIsClosed) {
    auto outer = store.createKey(RegistryScope::User, L"A");
    auto inner = store.createKey(RegistryScope::User, LR"(A\B)");
    inner->setText(L"", L"x");
    inner.reset();
    EXPECT_FALSE(std::filesystem::exists(user));
    outer->setText(L"", L"y");
    outer.reset();
    EXPECT_EQ(*read().text(L"A", L""), L"y");
    EXPECT_EQ(*read().text(LR"(A\B)", L""), L"x");
}

TEST_F(FileRegistryStoreTest, OpenedKeyKeepsWhatItHolds) {
    store.createKey(RegistryScope::User, L"A")->setText(L"Name", L"x");
    store.createKey(RegistryScope::User, L"A")->setNumber(L"Width", 1);
    EXPECT_EQ(*read().text(L"A", L"Name"), L"x");
    EXPECT_TRUE(store.createKey(RegistryScope::User, L"A")->deleteValue(L"Name"));
    EXPECT_EQ(read().text(L"A", L"Name"), nullptr);
}

TEST_F(FileRegistryStoreTest, KeyIsDeletedAtOnceUnlessKeysAreBelowIt) {
    store.createKey(RegistryScope::User, LR"(A\B)");
    store.createKey(RegistryScope::User, L"A");
    EXPECT_FALSE(store.deleteKey(RegistryScope::User, L"A"));
    EXPECT_TRUE(store.deleteKey(RegistryScope::User, LR"(A\B)"));
    EXPECT_TRUE(store.deleteKey(RegistryScope::User, L"A"));
    EXPECT_TRUE(read().entries().empty());
}

TEST_F(FileRegistryStoreTest, DeletingInNoFileMakesNone) {
    EXPECT_FALSE(store.deleteKey(RegistryScope::User, L"A"));
    EXPECT_FALSE(std::filesystem::exists(user.parent_path()));
}

TEST_F(FileRegistryStoreTest, FullDiskLeavesTheKeyThatIsDeleted) {
    store.createKey(RegistryScope::User, L"A")->setText(L"Name", L"x");
    const FullDisk full(4);
    EXPECT_FALSE(store.deleteKey(RegistryScope::User, L"A"));
    EXPECT_EQ(*read().text(L"A", L"Name"), L"x");
}

TEST_F(FileRegistryStoreTest, WhatIsNoPathGivesNoKey) {
    EXPECT_EQ(store.createKey(RegistryScope::User, LR"(A\\B)"), nullptr);
    EXPECT_FALSE(std::filesystem::exists(user));
}

TEST_F(FileRegistryStoreTest, DamagedFileGivesNoKeyAndStaysAsItIs) {
    std::filesystem::create_directories(user.parent_path());
    writeFile(user, "damaged\n");
    EXPECT_EQ(store.createKey(RegistryScope::User, L"A"), nullptr);
    EXPECT_FALSE(store.deleteKey(RegistryScope::User, L"A"));
    EXPECT_EQ(readFile(user), "damaged\n");
}

TEST_F(FileRegistryStoreTest, FolderInTheWayGivesNoKey) {
    std::filesystem::create_directories(user);
    EXPECT_EQ(store.createKey(RegistryScope::User, L"A"), nullptr);
}

TEST_F(FileRegistryStoreTest, FileInTheWayOfAFolderGivesNoKey) {
    writeFile(user.parent_path(), "a file");
    EXPECT_EQ(store.createKey(RegistryScope::User, L"A"), nullptr);
}

TEST_F(FileRegistryStoreTest, NoPlaceGivesNoKey) {
    FileRegistryStore nowhere([](RegistryScope) { return std::filesystem::path(); });
    EXPECT_EQ(nowhere.createKey(RegistryScope::User, L"A"), nullptr);
    EXPECT_FALSE(nowhere.deleteKey(RegistryScope::User, L"A"));
}

TEST_F(FileRegistryStoreTest, SecondWriterWaitsNoLongerThanTold) {
    const auto key = store.createKey(RegistryScope::User, L"A");
    FileRegistryStore other([this](RegistryScope scope) { return fileOf(scope); }, ShortWait);
    EXPECT_EQ(other.createKey(RegistryScope::User, L"B"), nullptr);
    EXPECT_NE(other.createKey(RegistryScope::Machine, L"B"), nullptr);
}

TEST_F(FileRegistryStoreTest, LockOfAnotherProcessThatEndsIsTakenOver) {
    std::filesystem::create_directories(user.parent_path());
    int toParent[2];
    ASSERT_EQ(::pipe(toParent), 0);
    const ::pid_t child = ::fork();
    if (child == 0) {
        const auto lock = FileLock::acquire(user, ShortWait);
        const char held = lock ? 'y' : 'n';
        (void)!::write(toParent[1], &held, 1);
        ::usleep(100'000);
        ::_exit(0);
    }
    char held = 'n';
    ASSERT_EQ(::read(toParent[0], &held, 1), 1);
    ASSERT_EQ(held, 'y');
    EXPECT_EQ(store.createKey(RegistryScope::User, L"A"), nullptr);
    FileRegistryStore patient([this](RegistryScope scope) { return fileOf(scope); },
                              milliseconds(10'000));
    EXPECT_NE(patient.createKey(RegistryScope::User, L"A"), nullptr);
    ::waitpid(child, nullptr, 0);
    ::close(toParent[0]);
    ::close(toParent[1]);
}

TEST_F(FileRegistryStoreTest, TextThatCannotBeKeptIsRefusedAndTheRestIsKept) {
    {
        const auto key = store.createKey(RegistryScope::User, L"A");
        EXPECT_FALSE(key->setText(L"Name", std::wstring{wchar_t{0xD800}}));
        EXPECT_TRUE(key->setText(L"Vendor", L"Meridax"));
    }
    EXPECT_EQ(read().text(L"A", L"Name"), nullptr);
    EXPECT_NE(read().text(L"A", L"Vendor"), nullptr);
}

TEST_F(FileRegistryStoreTest, MoreThanAFileMayHoldIsNotWritten) {
    store.createKey(RegistryScope::User, L"A")->setText(L"Name", L"before");
    store.createKey(RegistryScope::User, L"A")
        ->setText(L"Name", std::wstring(RegistryFile::MaxBytes, L'x'));
    EXPECT_EQ(*read().text(L"A", L"Name"), L"before");
}

TEST_F(FileRegistryStoreTest, LinkStaysALink) {
    std::filesystem::create_directories(user.parent_path());
    writeFile(folder / "kept elsewhere", "");
    std::filesystem::create_symlink(folder / "kept elsewhere", user);
    store.createKey(RegistryScope::User, L"A");
    EXPECT_TRUE(std::filesystem::is_symlink(user));
    EXPECT_NE(RegistryFile::load(folder / "kept elsewhere").find(L"A"), nullptr);
}

TEST_F(FileRegistryStoreTest, RewritingNothingLeavesTheFileAlone) {
    store.createKey(RegistryScope::User, L"A");
    writeFile(user, readFile(user) + "# a person's remark\n");
    const std::string before = readFile(user);
    store.createKey(RegistryScope::User, L"A");
    EXPECT_EQ(readFile(user), before);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
