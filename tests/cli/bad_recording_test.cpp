#include "tests/cli/command_test.h"

#include <unistd.h>

namespace Rotavue::Cli {

namespace {

class BadRecordingTest : public CommandTest {
protected:
    /// Both commands refuse the file with the same line, and no picture is left behind.
    void expectRefused(const std::string& file, const std::string& line,
                       const std::vector<std::string>& options = {}) {
        const std::vector<std::string> before = names();
        for (std::vector<std::string> arguments :
             {std::vector<std::string>{"info", file}, {"render", file, "-o", "picture.png"}}) {
            const std::string command = "rotavue " + arguments[0];
            arguments.insert(arguments.end(), options.begin(), options.end());
            const ProcessEnd end = rotavue(arguments);
            EXPECT_EQ(end.status, 1) << file;
            EXPECT_EQ(end.out, "") << file;
            EXPECT_EQ(end.error, command + ": " + line + '\n');
        }
        EXPECT_EQ(names(), before);
    }
};

TEST_F(BadRecordingTest, FaultsAreNamedByLineAndColumn) {
    struct Case {
        std::string text;
        std::string fault;
    };
    const Case cases[] = {
        {"t,x,y\n0,1,2\n1,2\n2,3,4\n", ":3:4: found 2 fields, allowed: 3 as in line 2"},
        {"t,x,y\n0,1,2\n1,2,3,4\n", ":3:7: found 4 fields, allowed: 3 as in line 2"},
        {"t,x,y\n0,1,2\n1,2,abc\n",
         ":3:5: found \"abc\" in column \"y\", allowed: a number, or nothing for a gap"},
        {"t,x,y,kp\n0,1,2,0\n1,2,3,\n", ":3:7: found nothing in column \"kp\", allowed: a number"},
        {"t,x,y\n0,1,2\nnan,2,3\n", ":3:1: found \"nan\" in column \"t\", allowed: a number"},
        {"t,x,y\n0,1,2\n1,2,3\n-inf,2,3\n",
         ":4:1: found \"-inf\" in column \"t\", allowed: a number"},
        {"t,x,y\n0,1,2\n1,2,3\n0.5,3,4\n",
         ":4:1: found time 0.5 after 1, allowed: time that does not run backward"},
    };
    int number = 0;
    for (const Case& c : cases) {
        const std::string file = "bad" + std::to_string(++number) + ".csv";
        write(file, c.text);
        expectRefused(file, file + c.fault);
    }
}

TEST_F(BadRecordingTest, GapsInAProbeAreNoFault) {
    write("gaps.csv", "t,x,y\n0,1,2\n1,nan,3\n2,2,inf\n3,2,\n4,1,2\n");
    const ProcessEnd end = rotavue({"info", "gaps.csv"});
    EXPECT_EQ(end.status, 0) << end.error;
    // Of five samples one lacks x, two lack y.
    EXPECT_NE(end.out.find("note         3 of 5 samples are gaps\n"), std::string::npos) << end.out;
}

TEST_F(BadRecordingTest, WhatIsNoFileOfRowsIsToldByName) {
    write("empty.csv", "");
    std::filesystem::create_directory(at("folder"));
    expectRefused("empty.csv", "empty.csv: found an empty file, allowed: rows of numbers");
    expectRefused("folder", "folder: found a directory, allowed: a file that can be read");
    expectRefused("none.csv", "none.csv: found no such file, allowed: a file that can be read");
    expectRefused("/dev/null",
                  "/dev/null: found a device or pipe, allowed: a file that can be read");
}

TEST_F(BadRecordingTest, FileWithoutReadPermissionIsToldByName) {
    constexpr unsigned Nobody = 65534;
    writeRotor("closed.csv");
    std::filesystem::permissions(at("closed.csv"), std::filesystem::perms::owner_write);
    std::filesystem::permissions(folder().parent_path(), std::filesystem::perms::all);
    ProcessOrder info = order({"info", "closed.csv"});
    if (::geteuid() == 0) {
        info.user = Nobody;
        ProcessOrder version = order({"--version"});
        version.user = Nobody;
        if (runProcess(version).status != 0) {
            GTEST_SKIP() << "root reads every file, and another user cannot run the program";
        }
    }
    const ProcessEnd end = runProcess(info);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "rotavue info: closed.csv: found \"Permission denied\", allowed: a file that can be "
              "read\n");
}

TEST_F(BadRecordingTest, UnknownColumnNamesTheNearestOne) {
    writeRotor("rotor.csv");
    expectRefused("rotor.csv",
                  "rotor.csv: found no column \"kpp\" (the nearest name is \"kp\"), allowed: t, x, "
                  "y and kp",
                  {"--keyphasor-column", "kpp"});
}

TEST_F(BadRecordingTest, MachineFileIsNamedByItsPlace) {
    writeRotor("rotor.csv");
    write("rotor.machine.json", R"({"x": {"angle": "up"}})");
    const ProcessEnd end = rotavue({"info", "rotor.csv"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error.find("rotavue info: rotor.machine.json: "), 0U) << end.error;
    EXPECT_NE(end.error.find("/x/angle"), std::string::npos) << end.error;
}

TEST_F(BadRecordingTest, SecondOfTwoRecordingsSpoilsThePicture) {
    writeRotor("good.csv");
    write("bad.csv", "t,x,y\n0,1,2\n1,2\n");
    const ProcessEnd end = rotavue({"render", "good.csv", "bad.csv", "-o", "both.png"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "rotavue render: bad.csv:3:4: found 2 fields, allowed: 3 as in line 2\n");
    EXPECT_EQ(names(), (std::vector<std::string>{"bad.csv", "good.csv"}));
}

}  // namespace

}  // namespace Rotavue::Cli
