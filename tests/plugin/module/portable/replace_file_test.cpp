#include "plugin/module/portable/replace_file.h"

#include "tests/plugin/module/portable/full_disk.h"
#include "tests/plugin/module/portable/temporary_folder.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

namespace fs = std::filesystem;

TEST(ReplaceFile, FullDiskLeavesTheOldContentAndNothingBeside) {
    const TemporaryFolder folder;
    writeFile(folder / "r", "before");
    const FullDisk full(4);  // of "content" the first four bytes are written
    EXPECT_FALSE(replaceFile(folder / "r", "content"));
    EXPECT_EQ(readFile(folder / "r"), "before");
    EXPECT_FALSE(fs::exists(folder / "r.new"));
}

TEST(ReplaceFile, MakesAFile) {
    const TemporaryFolder folder;
    EXPECT_TRUE(replaceFile(folder / "r", "content"));
    EXPECT_EQ(readFile(folder / "r"), "content");
}

TEST(ReplaceFile, LeavesNothingBeside) {
    const TemporaryFolder folder;
    replaceFile(folder / "r", "content");
    EXPECT_FALSE(fs::exists(folder / "r.new"));
}

TEST(ReplaceFile, KeepsThePermissionsOfTheOldFile) {
    const TemporaryFolder folder;
    writeFile(folder / "r", "before");
    fs::permissions(folder / "r", fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(replaceFile(folder / "r", "after"));
    EXPECT_EQ(fs::status(folder / "r").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST(ReplaceFile, PutsWhatABrokenWriterLeftAside) {
    const TemporaryFolder folder;
    writeFile(folder / "r.new", "half a fi");
    EXPECT_TRUE(replaceFile(folder / "r", "content"));
    EXPECT_EQ(readFile(folder / "r"), "content");
}

TEST(ReplaceFile, DoesNotWriteThroughALinkThatLiesBeside) {
    const TemporaryFolder folder;
    writeFile(folder / "victim", "untouched");
    fs::create_symlink(folder / "victim", folder / "r.new");
    EXPECT_TRUE(replaceFile(folder / "r", "content"));
    EXPECT_EQ(readFile(folder / "victim"), "untouched");
}

TEST(ReplaceFile, FailureLeavesTheOldContentAndNothingBeside) {
    const TemporaryFolder folder;
    fs::create_directories(folder / "r" / "below");  // a folder cannot be replaced by a file
    EXPECT_FALSE(replaceFile(folder / "r", "content"));
    EXPECT_TRUE(fs::is_directory(folder / "r"));
    EXPECT_FALSE(fs::exists(folder / "r.new"));
}

TEST(ReplaceFile, FolderThatIsMissingIsAFailure) {
    const TemporaryFolder folder;
    EXPECT_FALSE(replaceFile(folder / "none" / "r", "content"));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
