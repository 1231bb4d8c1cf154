#include "workbench/recording/machine_file.h"

#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

class MachineFile : public ScratchFolder {
protected:
    RecordingOptions read(std::string_view text) const {
        return readMachineFile(write("r.machine.json", text));
    }
    std::string faultOf(std::string_view text) const {
        return messageOf([&] { read(text); });
    }
};

TEST_F(MachineFile, LiesBesideTheRecording) {
    EXPECT_EQ(machineFileOf("kit/run-up.csv"), "kit/run-up.machine.json");
    EXPECT_EQ(machineFileOf("run.1.wav"), "run.1.machine.json");
    EXPECT_EQ(machineFileOf("bare"), "bare.machine.json");
}

TEST_F(MachineFile, FillsEveryField) {
    const RecordingOptions options = read(R"({
        "machine": "Kit", "point": "DE", "unit": "mil", "rate": 5000, "rotation": "CCW",
        "coupling": "AC", "time": {"column": "t"},
        "x": {"column": "A", "angle": "45 R", "sensitivity": 0.2, "rest": -9.5},
        "y": {"column": "B", "angle": -45, "sensitivity": -0.25, "rest": 1},
        "keyphasor": {"column": "K", "kind": "volts", "edge": "falling", "level": -5,
                      "hysteresis": 0.5, "pulsesPerTurn": 60, "angle": "90 L"},
        "clearance": {"width": 8, "height": 7.5}})");
    EXPECT_EQ(options.machine, "Kit");
    EXPECT_EQ(options.point, "DE");
    EXPECT_EQ(options.unit, "mil");
    EXPECT_EQ(options.rate, 5000.0);
    EXPECT_EQ(options.rotation, Rotation::CounterClockwise);
    EXPECT_EQ(options.coupling, Coupling::Ac);
    EXPECT_EQ(options.timeColumn, "t");
    EXPECT_EQ(options.x.column, "A");
    EXPECT_EQ(options.x.angle, 45.0);
    EXPECT_EQ(options.x.sensitivity, 0.2);
    EXPECT_EQ(options.x.rest, -9.5);
    EXPECT_EQ(options.y.column, "B");
    EXPECT_EQ(options.y.angle, -45.0);
    EXPECT_EQ(options.y.sensitivity, -0.25);
    EXPECT_EQ(options.y.rest, 1.0);
    EXPECT_EQ(options.keyphasor.column, "K");
    EXPECT_EQ(options.keyphasor.kind, KeyphasorKind::Volts);
    EXPECT_EQ(options.keyphasor.edge, PulseEdge::Falling);
    EXPECT_EQ(options.keyphasor.level, -5.0);
    EXPECT_EQ(options.keyphasor.hysteresis, 0.5);
    EXPECT_EQ(options.keyphasor.pulsesPerTurn, 60);
    EXPECT_EQ(options.keyphasor.angle, 270.0);
    EXPECT_EQ(options.clearanceWidth, 8.0);
    EXPECT_EQ(options.clearanceHeight, 7.5);
    EXPECT_EQ(options.machineFile, std::nullopt);
}

TEST_F(MachineFile, LeavesOutWhatItDoesNotName) {
    const RecordingOptions options = read(R"({"x": {}})");
    EXPECT_EQ(options.rate, std::nullopt);
    EXPECT_EQ(options.x.column, std::nullopt);
    EXPECT_EQ(options.rotation, std::nullopt);
}

TEST_F(MachineFile, NamesThePlaceOfEachWrongValue) {
    struct Case {
        const char* text;
        const char* fault;
    };
    const Case cases[] = {
        {"[1]", "a list at the top level, allowed: an object"},
        {R"({"x": 5})", "5 at /x, allowed: an object"},
        {R"({"rate": "5000"})", "\"5000\" at /rate, allowed: a number from 0.001 to 1e+09"},
        {R"({"rate": 0})", "0 at /rate, allowed: a number from 0.001 to 1e+09"},
        {R"({"rate": null})", "null at /rate, allowed: a number from 0.001 to 1e+09"},
        {R"({"machine": ""})", "\"\" at /machine, allowed: a text of 1 to 200 characters"},
        {R"({"rotation": "ccw"})", "\"ccw\" at /rotation, allowed: \"CW\" or \"CCW\""},
        {R"({"keyphasor": {"kind": 1}})",
         "1 at /keyphasor/kind, allowed: \"none\", \"volts\", \"ramp\" or \"speed\""},
        {R"({"keyphasor": {"pulsesPerTurn": 0}})",
         "0 at /keyphasor/pulsesPerTurn, allowed: a whole number from 1 to 3600"},
        {R"({"keyphasor": {"pulsesPerTurn": 1.5}})",
         "1.5 at /keyphasor/pulsesPerTurn, allowed: a whole number from 1 to 3600"},
        {R"({"y": {"sensitivity": 0}})",
         "0 at /y/sensitivity, allowed: a number from -1e+12 to 1e+12, not 0"},
        {R"({"x": {"angle": "up"}})",
         "\"up\" at /x/angle, allowed: a number from -360 to 360, or a text such as \"45 R\" or "
         "\"45 L\""},
        {R"({"x": {"angle": {}}})",
         "an object at /x/angle, allowed: a number from -360 to 360, or a text such as \"45 R\" or "
         "\"45 L\""},
        {R"({"clearance": {"width": -1}})",
         "-1 at /clearance/width, allowed: a number from 0 to 1e+12"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(faultOf(c.text), std::string("r.machine.json: found ") + c.fault);
    }
}

TEST_F(MachineFile, NamesTheNearestOfAnUnknownMember) {
    EXPECT_EQ(faultOf(R"({"x": {"angel": 45}})"),
              "r.machine.json: found the unknown member \"/x/angel\" (the nearest name is "
              "\"angle\"), allowed: column, angle, sensitivity and rest");
    EXPECT_EQ(
        faultOf(R"({"clearence": {}})"),
        "r.machine.json: found the unknown member \"/clearence\" (the nearest name is "
        "\"clearance\"), allowed: machine, point, unit, rate, time, rotation, coupling, x, y, "
        "keyphasor and others");
    // A name with a slash is escaped, so that it is not taken for two.
    EXPECT_NE(faultOf(R"({"x/angle": 45})").find("\"/x~1angle\""), std::string::npos);
}

TEST_F(MachineFile, NamesLineAndColumnWhereTheTextIsNoJson) {
    EXPECT_EQ(faultOf("{\n  \"rate\": 5 x\n}"),
              "r.machine.json:2:13: found \"x\", allowed: a JSON object");
    EXPECT_EQ(faultOf("{"),
              "r.machine.json:1:2: found the end of the file, allowed: a JSON object");
    EXPECT_EQ(faultOf(""), "r.machine.json:1:1: found the end of the file, allowed: a JSON object");
    EXPECT_EQ(faultOf("{\"rate\": 1e999}"),
              "r.machine.json: found a number beyond all bounds, allowed: a JSON object");
}

TEST_F(MachineFile, OfAWrongOneTheSoundItemsCanBeHad) {
    RecordingOptions told;
    told.unit = "mil";
    const auto soundItems = [&](const char* text) {
        write("r.machine.json", text);
        return withSoundItems(at("r.csv"), told);
    };
    const RecordingOptions options = soundItems(
        R"({"unit": "um", "rate": -1, "x": {"angle": 45, "sensitivity": "a"}, "clearence": {}})");
    EXPECT_EQ(options.unit, "mil");  // what is told goes before
    EXPECT_EQ(options.x.angle, 45.0);
    EXPECT_EQ(options.rate, std::nullopt);
    EXPECT_EQ(options.x.sensitivity, std::nullopt);
    for (const char* text : {"", "[1]", "{\"rate\": 5000"}) {
        EXPECT_EQ(soundItems(text).unit, "mil") << text;
        EXPECT_EQ(soundItems(text).rate, std::nullopt) << text;
    }
    told.machineFile = "";  // none counts
    EXPECT_EQ(soundItems(R"({"x": {"angle": 45}})").x.angle, std::nullopt);
}

TEST_F(MachineFile, OutlastsDeepAndLargeFiles) {
    EXPECT_EQ(faultOf(std::string(60'000, '[')),
              "r.machine.json: found values nested too deep, allowed: 8 levels");
    std::string texts = "[\"\"";
    for (int i = 0; i < 1'000; ++i)
        texts += ",\"\"";
    EXPECT_EQ(faultOf(texts + ']'),
              "r.machine.json: found too many lists, objects and texts, allowed: at most 1000");
    EXPECT_EQ(faultOf(std::string(65'537, ' ')),
              "r.machine.json: found more than 65536 bytes, allowed: at most 65536 bytes");
}

}  // namespace
}  // namespace Rotavue::Workbench
