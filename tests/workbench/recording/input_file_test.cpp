#include "workbench/recording/input_file.h"

#include <sys/stat.h>

#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

class InputFile : public ScratchFolder {};

TEST_F(InputFile, GivesTheBytesAsTheyAre) {
    const std::string bytes("a\r\n\0z", 5);
    EXPECT_EQ(readSmallFile(write("f", bytes), 5), bytes);
}

TEST_F(InputFile, RefusesAFileBeyondTheLimit) {
    const auto file = write("f", "123456");
    EXPECT_EQ(messageOf([&] { readSmallFile(file, 5); }),
              "f: found more than 5 bytes, allowed: at most 5 bytes");
}

TEST_F(InputFile, NamesWhatIsNoOrdinaryFile) {
    std::filesystem::create_directory(at("d"));
    ASSERT_EQ(::mkfifo(at("p").c_str(), 0600), 0);
    EXPECT_EQ(messageOf([&] { openInput(at("none")); }),
              "none: found no such file, allowed: a file that can be read");
    EXPECT_EQ(messageOf([&] { openInput(at("d")); }),
              "d: found a directory, allowed: a file that can be read");
    EXPECT_EQ(messageOf([&] { openInput(at("p")); }),
              "p: found a device or pipe, allowed: a file that can be read");
    EXPECT_EQ(messageOf([&] { openInput(at("none") / "below"); }),
              "none/below: found no such file, allowed: a file that can be read");
}

TEST_F(InputFile, NamesTheReasonWhenThePathItselfIsRefused) {
    const std::filesystem::path file = at(std::string(300, 'n'));
    EXPECT_NE(messageOf([&] { openInput(file); }).find("found \"File name too long\""),
              std::string::npos);
}

TEST_F(InputFile, SaysThatAFileMayNotBeRead) {
    if (::geteuid() == 0) GTEST_SKIP() << "root may read every file";
    const auto file = write("f", "1");
    ASSERT_EQ(::chmod(file.c_str(), 0), 0);
    EXPECT_EQ(messageOf([&] { openInput(file); }),
              "f: found \"Permission denied\", allowed: a file that can be read");
}

}  // namespace
}  // namespace Rotavue::Workbench
