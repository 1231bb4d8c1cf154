#include "tests/cli/command_test.h"

namespace Rotavue::Cli {

namespace {

class InfoTest : public CommandTest {
protected:
    InfoTest() { writeRotor("rotor.csv"); }
};

// 2,000 samples at 1,000 Hz are 2 s. x swings from -30 to 30. No sample meets the top of y: the
// nearest are 12 and 13 of 50, sin(86.4 degrees) = 0.998027, so y swings 2 x 19.96054. From the
// first sample to the last are 1999 / 50 = 39.98 turns, at 20 a second 1200 rpm.
constexpr const char* Facts =
    "samples      2000 in 2 s\n"
    "rate         1000 Hz, from the time column\n"
    "X probe      at 90\u00B0 R, 60 um pp, mean ";

TEST_F(InfoTest, TellsWhatIsInARecording) {
    const ProcessEnd end = rotavue({"info", "rotor.csv"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(
        end.out.find("file         rotor.csv\n"
                     "columns      t [s] (time), x [um] (x), y [um] (y), kp [V] (keyphasor)\n" +
                     std::string(Facts)),
        0U)
        << end.out;
    EXPECT_NE(end.out.find("Y probe      at 0\u00B0, 39.92 um pp, mean "), std::string::npos);
    EXPECT_NE(end.out.find("keyphasor    volts at 0\u00B0, 39.98 turns, mean speed 1200 rpm\n"),
              std::string::npos)
        << end.out;
}

TEST_F(InfoTest, OptionGoesBeforeWhatTheFileSays) {
    const ProcessEnd end = rotavue({"info", "rotor.csv", "--rate", "500"});
    EXPECT_NE(end.out.find("samples      2000 in 4 s\n"), std::string::npos) << end.out;
    EXPECT_NE(end.out.find("rate         500 Hz, from the "), std::string::npos) << end.out;
}

TEST_F(InfoTest, JsonTellsTheSameToPrograms) {
    const ProcessEnd end = rotavue({"info", "rotor.csv", "--json"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.out.find("{\n  \"file\": \"rotor.csv\""), 0U) << end.out;
    EXPECT_TRUE(end.out.ends_with("}\n")) << end.out;
    for (const char* member : {"\"sampleCount\": 2000", "\"sampleRate\": 1000.0",
                               "\"duration\": 2.0", "\"least\": -30.0", "\"most\": 30.0"}) {
        EXPECT_NE(end.out.find(member), std::string::npos) << member << '\n' << end.out;
    }
}

TEST_F(InfoTest, MachineFileBesideTheRecordingCounts) {
    write("rotor.machine.json",
          R"({"machine": "Pump 3", "point": "DE", "rotation": "CCW",
              "x": {"angle": "45 R"}, "clearance": {"width": 200, "height": 180}})");
    const std::string out = rotavue({"info", "rotor.csv"}).out;
    for (const char* line : {"machine      Pump 3, DE\n", "X probe      at 45\u00B0 R, ",
                             "rotation     CCW\n", "clearance    200 x 180 um\n"}) {
        EXPECT_NE(out.find(line), std::string::npos) << line << out;
    }
}

TEST_F(InfoTest, ToAFullDiskFails) {
    ProcessOrder info = order({"info", "rotor.csv"});
    info.arguments = {"/bin/sh", "-c", programFile() + " info rotor.csv > /dev/full"};
    const ProcessEnd end = runProcess(info);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "rotavue info: standard output: No space left on device\n");
}

}  // namespace

}  // namespace Rotavue::Cli
