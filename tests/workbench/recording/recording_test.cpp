#include "workbench/recording/recording.h"

#include <sys/stat.h>

#include <array>
#include <cmath>

#include "tests/workbench/recording/scratch_folder.h"
#include "tests/workbench/recording/wav_bytes.h"

namespace Rotavue::Workbench {
namespace {

using Values = std::vector<double>;

class RecordingTest : public ScratchFolder {
protected:
    Recording read(std::string_view text, const RecordingOptions& options = {}) const {
        return readRecording(write("r.csv", text), options);
    }
    std::string faultOf(std::string_view text, const RecordingOptions& options = {}) const {
        return messageOf([&] { read(text, options); });
    }
};

std::string rolesOf(const Recording& recording) {
    std::string letters;
    for (const RecordingColumn& column : recording.columns) {
        letters += "-txyk"[static_cast<int>(column.role)];
    }
    return letters;
}

TEST_F(RecordingTest, IsTimeXAndYWithoutAHeader) {
    const Recording recording = read(
        "\xEF\xBB\xBF"
        "0.5,1,10\n0.6,2,20\n0.7,3,30\n");
    EXPECT_EQ(recording.file, at("r.csv"));
    EXPECT_EQ(rolesOf(recording), "txy");
    EXPECT_EQ(recording.x, (Values{1, 2, 3}));
    EXPECT_EQ(recording.y, (Values{10, 20, 30}));
    EXPECT_EQ(recording.sampleCount(), 3u);
    EXPECT_EQ(recording.sampleRate, 10.0);
    EXPECT_EQ(recording.rateSource, RateSource::TimeColumn);
    EXPECT_EQ(recording.startTime, 0.5);
    EXPECT_DOUBLE_EQ(recording.duration(), 0.3);
    EXPECT_FALSE(recording.hasTacho());
    EXPECT_EQ(recording.meanSpeed, 0.0);
    EXPECT_TRUE(recording.notes.empty());
}

TEST_F(RecordingTest, HasTheDefaultsOfPlainData) {
    const MachineFacts machine = read("0,1,10\n1,2,20\n2,3,30\n").machine;
    EXPECT_EQ(machine.xAngle, 90.0);
    EXPECT_EQ(machine.yAngle, 0.0);
    EXPECT_EQ(machine.tachoAngle, 0.0);
    EXPECT_EQ(machine.rotation, std::nullopt);
    EXPECT_EQ(machine.clearanceWidth, 0.0);
    EXPECT_EQ(machine.clearanceHeight, 0.0);
    EXPECT_EQ(machine.unit + machine.machine + machine.point, "");
}

TEST_F(RecordingTest, TakesUnitAndNamesFromItsHeader) {
    const Recording recording =
        read("Machine Name,Kit\nPoint Name,DE\nt [ms],x [um],y [um]\n0,1,2\n0.5,3,4\n");
    EXPECT_EQ(recording.machine.machine, "Kit");
    EXPECT_EQ(recording.machine.point, "DE");
    EXPECT_EQ(recording.machine.unit, "um");
    EXPECT_EQ(recording.sampleRate, 2000.0);
    EXPECT_EQ(recording.columns[1].name, "x");
    EXPECT_EQ(recording.columns[1].unit, "um");
}

TEST_F(RecordingTest, TakesTheRateFromTheOptionThenTheTimeThenTheHeader) {
    const char* text = "Sample Rate,100\nt,x,y\n0,1,2\n0.5,1,2\n";
    EXPECT_EQ(read(text).sampleRate, 2.0);
    RecordingOptions options;
    options.rate = 50.0;
    EXPECT_EQ(read(text, options).sampleRate, 50.0);
    EXPECT_EQ(read(text, options).rateSource, RateSource::Option);
    const Recording header = read("Sample Rate,100\nx,y\n1,2\n");
    EXPECT_EQ(header.sampleRate, 100.0);
    EXPECT_EQ(header.rateSource, RateSource::FileHeader);
}

TEST_F(RecordingTest, DoesNotReadATimeThatTheRateReplaces) {
    const char* backward = "t,x,y\n5,1,2\n4,3,4\n";
    EXPECT_EQ(faultOf(backward),
              "r.csv:3:1: found time 4 after 5, allowed: time that does not run backward");
    RecordingOptions options;
    options.rate = 50.0;
    EXPECT_EQ(read(backward, options).x, (Values{1, 3}));
}

TEST_F(RecordingTest, SaysWhereTheTimeIsNotEven) {
    // Mean step 2 s; the value 1 should be 2, 2 should be 4 .. 4 should be 8: 4 s, 2 steps.
    EXPECT_TRUE(read("t,x,y\n0,1,2\n1,1,2\n2,1,2\n3,1,2\n4,1,2\n10,1,2\n").notes.empty());
    // Mean step 3 s; 6 should be 18, which is 4 steps.
    const Recording recording =
        read("t,x,y\n0,1,2\n1,1,2\n2,1,2\n3,1,2\n4,1,2\n5,1,2\n6,1,2\n21,1,2\n");
    EXPECT_EQ(recording.notes, std::vector<std::string>{
                                   "the time strays from equal steps by up to 12 s; the samples "
                                   "are taken as equally spaced"});
}

TEST_F(RecordingTest, TurnsPulsesIntoAShaftAngle) {
    // Rising through -3 halfway between samples 1 and 2 and between 5 and 6: turns of 4 samples.
    const Recording recording = read(
        "t,x,y,keyphasor [V]\n0,0,0,-5\n0.1,0,0,-5\n0.2,0,0,-1\n0.3,0,0,-5\n0.4,0,0,-5\n"
        "0.5,0,0,-5\n0.6,0,0,-1\n0.7,0,0,-5\n");
    EXPECT_EQ(recording.keyphasorKind, KeyphasorKind::Volts);
    EXPECT_EQ(recording.angle, (Values{225, 315, 45, 135, 225, 315, 45, 135}));
    ASSERT_EQ(recording.pulseTimes.size(), 2u);
    EXPECT_DOUBLE_EQ(recording.pulseTimes[0], 0.15);
    EXPECT_DOUBLE_EQ(recording.pulseTimes[1], 0.55);
    EXPECT_DOUBLE_EQ(recording.meanSpeed, 150.0);  // 0.4 s a turn
}

TEST_F(RecordingTest, TakesTheFallingEdgeAndPulsesPerTurn) {
    RecordingOptions options;
    options.rate = 10.0;
    options.keyphasor.edge = PulseEdge::Falling;
    options.keyphasor.pulsesPerTurn = 2;
    options.keyphasor.level = 1.0;
    // Falling from 4 to 0 through 1 after three quarters: 1.75 and 3.75; half a turn in 2 samples.
    const Recording recording = read("x,y,kp\n0,0,0\n0,0,4\n0,0,0\n0,0,4\n0,0,0\n", options);
    EXPECT_EQ(recording.angle, (Values{202.5, 292.5, 22.5, 112.5, 202.5}));
    EXPECT_EQ(recording.meanSpeed, 150.0);  // half a turn in 0.2 s
    EXPECT_FALSE(recording.hasMark());
    EXPECT_EQ(recording.notes.back(),
              "the keyphasor has 2 pulses a turn, and the angle counts from the first of the "
              "recording: lags hold within this recording alone");
    options.keyphasor.pulsesPerTurn = 1;
    EXPECT_TRUE(read("x,y,kp\n0,0,0\n0,0,4\n0,0,0\n0,0,4\n0,0,0\n", options).hasMark());
}

TEST_F(RecordingTest, TakesARampAsItStands) {
    const Recording recording =
        read("t,x,y,phi\n0,0,0,10\n1,0,0,130\n2,0,0,250\n3,0,0,370\n4,0,0,-230\n");
    EXPECT_EQ(recording.keyphasorKind, KeyphasorKind::Ramp);
    EXPECT_EQ(recording.angle, (Values{10, 130, 250, 10, 130}));
    EXPECT_DOUBLE_EQ(recording.meanSpeed, 20.0);  // a third of a turn each second
    EXPECT_TRUE(recording.pulseTimes.empty());
}

TEST_F(RecordingTest, TurnsAFallingRampOver) {
    const Recording recording = read("t,x,y,phi\n0,0,0,10\n1,0,0,250\n2,0,0,130\n3,0,0,10\n");
    EXPECT_EQ(recording.angle, (Values{350, 110, 230, 350}));
    EXPECT_DOUBLE_EQ(recording.meanSpeed, 20.0);
    EXPECT_EQ(recording.notes,
              std::vector<std::string>{"the shaft angle falls in the file; it was turned over"});
}

TEST_F(RecordingTest, TakesARampInRadians) {
    const Recording recording = read("t,x,y,phi [rad]\n0,0,0,0\n1,0,0,1.5707963267948966\n");
    EXPECT_EQ(recording.angle, (Values{0, 90}));
}

TEST_F(RecordingTest, SumsASpeedUp) {
    // 15 rpm are 90 degrees a second, and 0.25 Hz are 15 rpm.
    const Recording rpm = read("t,x,y,rpm\n0,0,0,15\n1,0,0,15\n2,0,0,15\n");
    EXPECT_EQ(rpm.keyphasorKind, KeyphasorKind::Speed);
    EXPECT_EQ(rpm.angle, (Values{0, 90, 180}));
    EXPECT_EQ(rpm.meanSpeed, 15.0);
    EXPECT_FALSE(rpm.hasMark());
    EXPECT_EQ(rpm.notes, std::vector<std::string>{
                             "the keyphasor column is a speed, and the angle counts from the first "
                             "sample: lags hold within this recording alone"});
    EXPECT_EQ(read("t,x,y,speed [Hz]\n0,0,0,0.25\n1,0,0,0.25\n2,0,0,0.25\n").angle, rpm.angle);
    EXPECT_EQ(faultOf("t,x,y,rpm\n0,0,0,15\n1,0,0,-15\n"),
              "r.csv: found a speed of -15 rpm, allowed: 0 to 1e+09 rpm");
}

TEST_F(RecordingTest, HasNoAngleWithoutTwoPulses) {
    const Recording flat = read("t,x,y,kp\n0,0,0,5\n1,0,0,5\n2,0,0,5\n");
    EXPECT_FALSE(flat.hasTacho());
    EXPECT_EQ(flat.keyphasorKind, KeyphasorKind::None);
    EXPECT_EQ(flat.notes, std::vector<std::string>{"the keyphasor has 0 pulses at level 5, two are "
                                                   "needed: there is no shaft angle"});
    EXPECT_EQ(flat.meanSpeed, 0.0);
}

TEST_F(RecordingTest, SaysWhereTurnsCannotBeToldApart) {
    RecordingOptions options;
    options.keyphasor.kind = KeyphasorKind::Speed;
    // 30 rpm are half a turn a second.
    const Recording recording = read("t,x,y,kp\n0,0,0,30\n1,0,0,30\n", options);
    EXPECT_EQ(recording.notes.front(),
              "the shaft makes half a turn or more from sample to sample: "
              "turns cannot be told apart");
}

TEST_F(RecordingTest, ScalesEachProbeByItself) {
    RecordingOptions options;
    options.x.sensitivity = 0.5;
    options.x.rest = -10.0;
    options.y.sensitivity = -0.25;
    options.unit = "um";
    const Recording recording = read("t,x [V],y [V]\n0,-9,1\n1,-11,-2\n", options);
    EXPECT_EQ(recording.x, (Values{2, -2}));
    EXPECT_EQ(recording.y, (Values{-4, 8}));
    EXPECT_EQ(recording.machine.unit, "um");
    EXPECT_EQ(recording.coupling, Coupling::Dc);
}

TEST_F(RecordingTest, SaysThatANegativeSensitivityTurnsAProbeRound) {
    RecordingOptions options;
    options.x.sensitivity = 0.2;
    options.y.sensitivity = -0.2;
    EXPECT_EQ(read("t,x,y\n0,1,2\n1,1,2\n", options).notes,
              std::vector<std::string>{"the Y probe is turned round by its negative sensitivity"});
}

// X stands at -9.8 with 0.1 peak-to-peak, 98 times; Y moves about 0.
TEST_F(RecordingTest, SaysThatAProbeStandsFarOffUnlessItsRestIsKnown) {
    const std::string table = "t,x [V],y [V]\n0,-9.75,-1\n1,-9.85,1\n2,-9.8,0\n";
    EXPECT_EQ(read(table).notes,
              std::vector<std::string>{
                  "the X probe stands at -9.8 V, 98 times its peak-to-peak: tell its rest position "
                  "and V/um, or AC (in the window with Ctrl+I)"});
    RecordingOptions options;
    options.x.rest = 0.0;  // told, whatever it is
    EXPECT_TRUE(read(table, options).notes.empty());
    options = {};
    options.coupling = Coupling::Ac;
    EXPECT_TRUE(read(table, options).notes.empty());
    options = {};
    options.unit = "um";
    EXPECT_EQ(
        read(table, options).notes.front(),
        "the X probe stands at -9.8 um, 98 times its peak-to-peak: tell its rest position, or "
        "AC (in the window with Ctrl+I)");
}

TEST_F(RecordingTest, SaysWhichPlaneItIsOfWhereTheFileHasSeveral) {
    const std::string table = "t,P1.X,P1.Y,P2.X,P2.Y\n0,1,2,3,4\n1,1,2,3,4\n";
    EXPECT_EQ(read(table).notes,
              std::vector<std::string>{"taken are \"P1.X\" and \"P1.Y\"; 2 further columns have "
                                       "names of probes, such as \"P2.X\""});
    RecordingOptions named;
    named.x.column = "P2.X";
    named.y.column = "P2.Y";
    EXPECT_TRUE(read(table, named).notes.empty());
}

TEST_F(RecordingTest, CentresTheOrbitWhenCoupledAc) {
    RecordingOptions options;
    options.coupling = Coupling::Ac;
    const Recording recording = read("t,x,y\n0,1,5\n1,,7\n2,3,9\n", options);
    EXPECT_EQ(recording.x[0], -1.0);  // mean of 1 and 3: the gap does not count
    EXPECT_EQ(recording.x[2], 1.0);
    EXPECT_EQ(recording.y, (Values{-2, 0, 2}));
    EXPECT_EQ(recording.coupling, Coupling::Ac);
}

TEST_F(RecordingTest, CountsItsGaps) {
    const Recording recording = read("t,x,y\n0,1,5\n1,,7\n2,3,nan\n");
    EXPECT_TRUE(std::isnan(recording.x[1]));
    EXPECT_TRUE(std::isnan(recording.y[2]));
    EXPECT_EQ(recording.notes, std::vector<std::string>{"2 of 3 samples are gaps"});
    EXPECT_EQ(
        faultOf("t,x,y\n0,1,\n1,,7\n"),
        "r.csv: found gaps alone in x or y, allowed: at least one sample in which both have a "
        "value");
}

TEST_F(RecordingTest, DoesNotMixUnits) {
    EXPECT_EQ(faultOf("t,x [um],y [mil]\n0,1,2\n1,3,4\n"),
              "r.csv: found x in \"um\" and y in \"mil\", allowed: one unit for both, or "
              "sensitivities and the unit as options");
    RecordingOptions options;
    options.x.sensitivity = 2.0;
    EXPECT_EQ(read("t,x [V],y [V]\n0,1,2\n1,3,4\n", options).machine.unit, "");
}

TEST_F(RecordingTest, ObeysTheOptionsThenTheMachineFileThenItself) {
    write("r.machine.json", R"({"machine": "from file", "unit": "mil", "rotation": "CCW",
        "x": {"angle": "45 R"}, "y": {"angle": -45}, "keyphasor": {"angle": 360},
        "clearance": {"width": 8, "height": 7}})");
    RecordingOptions options;
    options.machine = "from option";
    const Recording recording = read("Point,DE\nt,x [um],y [um]\n0,1,2\n1,3,4\n", options);
    EXPECT_EQ(recording.machine.machine, "from option");
    EXPECT_EQ(recording.machine.point, "DE");
    EXPECT_EQ(recording.machine.unit, "mil");
    EXPECT_EQ(recording.machine.rotation, Rotation::CounterClockwise);
    EXPECT_EQ(recording.machine.xAngle, 45.0);
    EXPECT_EQ(recording.machine.yAngle, 315.0);
    EXPECT_EQ(recording.machine.tachoAngle, 0.0);
    EXPECT_EQ(recording.machine.clearanceWidth, 8.0);
    EXPECT_EQ(recording.machine.clearanceHeight, 7.0);
}

TEST_F(RecordingTest, TakesAMachineFileOfAnotherNameOnlyIfItIsThere) {
    RecordingOptions options;
    options.machineFile = write("m.json", R"({"point": "NDE"})");
    EXPECT_EQ(read("0,1,2\n1,3,4\n2,5,6\n", options).machine.point, "NDE");
    options.machineFile = at("none.json");
    EXPECT_EQ(faultOf("0,1,2\n1,3,4\n2,5,6\n", options),
              "none.json: found no such file, allowed: a file that can be read");
    write("r.machine.json", "{");
    EXPECT_EQ(faultOf("0,1,2\n1,3,4\n2,5,6\n"),
              "r.machine.json:1:2: found the end of the file, allowed: a JSON object");
    // An empty name: none, not even the one beside.
    options.machineFile = "";
    EXPECT_EQ(read("0,1,2\n1,3,4\n2,5,6\n", options).machine.point, "");
}

TEST_F(RecordingTest, ReadsAWavFileWithItsMachineFile) {
    write("r.machine.json", R"({"x": {"sensitivity": 0.0625}, "y": {"sensitivity": 0.125},
        "unit": "um"})");
    constexpr std::array<std::int16_t, 6> samples = {16384, -32768, 0, 8192, -16384, 4096};
    const Recording recording = readRecording(write("r.wav", wavBytes<std::int16_t>({}, samples)));
    EXPECT_EQ(recording.x, (Values{8, 0, -8}));
    EXPECT_EQ(recording.y, (Values{-8, 2, 1}));
    EXPECT_EQ(recording.sampleRate, 8000.0);
    EXPECT_EQ(recording.rateSource, RateSource::FileHeader);
    EXPECT_EQ(rolesOf(recording), "xy");
}

// 30,000 frames of three channels, a pulse each 100: two columns of single precision, and instead
// of a third one 300 pulses.
TEST_F(RecordingTest, TakesLessMemoryThanTwiceAWavFile) {
    std::vector<std::int16_t> samples;
    for (int i = 0; i < 30'000; ++i)
        for (const int value : {i % 997, -(i % 991), i % 100 < 5 ? 20'000 : 0})
            samples.push_back(static_cast<std::int16_t>(value));
    const auto file = write("r.wav", wavBytes<std::int16_t>({1, 3, 8000, 16}, samples));
    RecordingOptions options;
    options.coupling = Coupling::Ac;
    const Recording recording = readRecording(file, options);
    ASSERT_TRUE(recording.hasTacho());
    EXPECT_EQ(recording.angle.size(), 30'000U);
    EXPECT_EQ(recording.x[1] - recording.x[0], 1.0 / 32768.0);
    const std::size_t taken =
        recording.x.memoryUse() + recording.y.memoryUse() + recording.angle.memoryUse();
    EXPECT_LT(taken, 2 * std::filesystem::file_size(file));
}

TEST_F(RecordingTest, TakesTheThirdWavChannelAsKeyphasor) {
    constexpr std::array<std::int16_t, 18> samples = {0, 0, 0, 0, 0, 16384, 0, 0, 0,
                                                      0, 0, 0, 0, 0, 16384, 0, 0, 0};
    const Recording recording =
        readRecording(write("r.wav", wavBytes<std::int16_t>({1, 3, 8000, 16}, samples)));
    // Rising through the half between samples 0 and 1 and between 3 and 4: turns of 3 samples.
    EXPECT_EQ(rolesOf(recording), "xyk");
    EXPECT_EQ(recording.angle, (Values{300, 60, 180, 300, 60, 180}));
}

TEST_F(RecordingTest, RefusesWhatGivesNoOrbit) {
    RecordingOptions options;
    options.x.angle = 400.0;
    EXPECT_EQ(
        faultOf("0,1,2\n1,3,4\n2,5,6\n", options),
        "found 400 at /x/angle, allowed: a number from -360 to 360, or a text such as \"45 R\" "
        "or \"45 L\"");
    EXPECT_EQ(faultOf("x,y\n1,2\n"),
              "r.csv: found neither a time column nor a sample rate, allowed: a column named t or "
              "time, or the rate as an option");
    EXPECT_EQ(faultOf("t,x,y\n5,1,2\n5,3,4\n"),
              "r.csv: found a time that stands still, allowed: two or more rows of rising time, or "
              "the rate as an option");
    EXPECT_EQ(faultOf("t,x,y\n5,1,2\n"),
              "r.csv: found one row of samples, allowed: two or more rows of rising time, or the "
              "rate as an option");
    EXPECT_EQ(
        faultOf("t,x,y\n0,1,2\n1e-10,3,4\n"),
        "r.csv: found a time column of 1e+10 samples per second, allowed: a rate from 0.001 to "
        "1e+09");
    EXPECT_EQ(faultOf(""), "r.csv: found an empty file, allowed: rows of numbers");
    EXPECT_EQ(messageOf([&] { readRecording(at("none.csv")); }),
              "none.csv: found no such file, allowed: a file that can be read");
    std::filesystem::create_directory(at("d.csv"));
    EXPECT_EQ(messageOf([&] { readRecording(at("d.csv")); }),
              "d.csv: found a directory, allowed: a file that can be read");
}

}  // namespace
}  // namespace Rotavue::Workbench
