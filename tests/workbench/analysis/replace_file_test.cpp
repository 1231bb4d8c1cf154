#include "workbench/analysis/replace_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <string>

namespace Rotavue::Workbench {
namespace {

class ReplaceFileTest : public testing::Test {
protected:
    ReplaceFileTest() { std::filesystem::create_directory(folder_); }
    ~ReplaceFileTest() override { std::filesystem::remove_all(folder_); }

    static std::string read(const std::filesystem::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    std::ptrdiff_t files() const {
        return std::distance(std::filesystem::directory_iterator(folder_), {});
    }

    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("replace-" + std::to_string(::getpid()));
};

TEST_F(ReplaceFileTest, WritesAllOfItAndNothingElse) {
    const std::string content(3'000'000, 'x');
    EXPECT_FALSE(replaceFile(folder_ / "a", content));
    EXPECT_EQ(read(folder_ / "a"), content);
    EXPECT_FALSE(replaceFile(folder_ / "a", ""));
    EXPECT_EQ(read(folder_ / "a"), "");
    EXPECT_EQ(files(), 1);
}

// Whoever has the old file open, or by another name, keeps the old content.
TEST_F(ReplaceFileTest, OldContentIsNotWrittenOver) {
    ASSERT_FALSE(replaceFile(folder_ / "a", "old"));
    std::filesystem::create_hard_link(folder_ / "a", folder_ / "b");
    EXPECT_FALSE(replaceFile(folder_ / "a", "new"));
    EXPECT_EQ(read(folder_ / "a"), "new");
    EXPECT_EQ(read(folder_ / "b"), "old");
}

TEST_F(ReplaceFileTest, FileInTheWorkingFolderNeedsNoPath) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder_);
    EXPECT_FALSE(replaceFile("a", "text"));
    std::filesystem::current_path(before);
    EXPECT_EQ(read(folder_ / "a"), "text");
}

TEST_F(ReplaceFileTest, WhatFailsSaysWhyAndLeavesNothing) {
    EXPECT_EQ(replaceFile(folder_ / "none" / "a", "text"), std::errc::no_such_file_or_directory);
    std::filesystem::create_directory(folder_ / "a");
    EXPECT_EQ(replaceFile(folder_ / "a", "text"), std::errc::is_a_directory);
    EXPECT_EQ(files(), 1);
    EXPECT_TRUE(std::filesystem::is_empty(folder_ / "a"));
}

}  // namespace
}  // namespace Rotavue::Workbench
