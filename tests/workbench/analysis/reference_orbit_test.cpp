#include "workbench/analysis/reference_orbit.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/analysis/replace_file.h"

namespace Rotavue::Workbench {
namespace {

namespace fs = std::filesystem;

class ReferenceFile : public testing::Test {
protected:
    void SetUp() override {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = fs::path(testing::TempDir()) / (std::string("reference-") + test->name());
        fs::remove_all(folder_);
        fs::create_directories(folder_);
    }
    void TearDown() override { fs::remove_all(folder_); }

    fs::path file() const { return folder_ / "slow roll.json"; }

    void write(const std::string& text) const { std::ofstream(file()) << text; }

    std::string read() const {
        std::ifstream stream(file());
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    std::ptrdiff_t fileCount() const {
        return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
    }

    fs::path folder_;
};

ReferenceOrbit smallReference() {
    ReferenceOrbit reference;
    reference.orbit.unit = "um";
    reference.orbit.speed = 300.5;
    reference.orbit.averages = 25;
    reference.orbit.pointsPerTurn = 2;
    reference.orbit.revolutions = 2;
    reference.orbit.x = {0.1, 1.0 / 3.0, -2.5, 0.0};
    reference.orbit.y = {1e-17, 4.0, 5.0, 6.0};
    reference.machine = "Rotor \"kit\"";
    reference.point = "B\xC3\xA4r 1";
    reference.xAngle = 45.0;
    reference.yAngle = 315.0;
    return reference;
}

TEST_F(ReferenceFile, ComesBackToTheLastBit) {
    const ReferenceOrbit saved = smallReference();
    saveReference(saved, file());
    EXPECT_EQ(fileCount(), 1);
    const ReferenceOrbit loaded = loadReference(file());
    EXPECT_EQ(loaded.orbit.x, saved.orbit.x);
    EXPECT_EQ(loaded.orbit.y, saved.orbit.y);
    EXPECT_EQ(loaded.orbit.unit, "um");
    EXPECT_EQ(loaded.orbit.speed, 300.5);
    EXPECT_EQ(loaded.orbit.averages, 25);
    EXPECT_EQ(loaded.orbit.revolutions, 2);
    EXPECT_EQ(loaded.orbit.pointsPerTurn, 2);
    EXPECT_EQ(loaded.machine, saved.machine);
    EXPECT_EQ(loaded.point, saved.point);
    EXPECT_EQ(loaded.xAngle, 45.0);
    EXPECT_EQ(loaded.yAngle, 315.0);
}

TEST_F(ReferenceFile, TakesTheFactsOfItsRecording) {
    Recording recording = generate({.orders = {{1.0, {40, 30}, {40, 120}}}});
    recording.machine.machine = "Pump";
    recording.machine.xAngle = 45.0;
    recording.machine.yAngle = 315.0;
    saveReference(referenceFrom(averageOrbit(recording, ShaftTrack(recording)), recording), file());
    const ReferenceOrbit loaded = loadReference(file());
    EXPECT_EQ(loaded.machine, "Pump");
    EXPECT_EQ(loaded.orbit.x.size(), 256u);
    EXPECT_EQ(refusalOf([&] { checkComparable(loaded, recording); }), "");
}

TEST_F(ReferenceFile, ReplacesAnOlderOneAndSurvivesANameOfAnotherEncoding) {
    write("old");
    ReferenceOrbit reference = smallReference();
    reference.machine = "B\xE4r";
    saveReference(reference, file());
    EXPECT_EQ(loadReference(file()).machine, "B\xEF\xBF\xBDr");
    EXPECT_EQ(fileCount(), 1);
}

TEST_F(ReferenceFile, LeavesNothingBehindWhenItCannotBeWritten) {
    fs::create_directories(file() / "in the way");
    const std::string line = refusalOf([&] { saveReference(smallReference(), file()); });
    EXPECT_NE(line.find("a place where a file can be written"), std::string::npos) << line;
    EXPECT_EQ(fileCount(), 1);
    EXPECT_TRUE(fs::is_directory(file()));
    EXPECT_TRUE(replaceFile(folder_ / "none" / "deep.json", "text"));
}

std::string manyMembers(int count) {
    std::string text = "{\"a\": 0";
    for (int i = 0; i < count; ++i)
        text += ", \"" + std::to_string(i) + "\": 0";
    return text + '}';
}

TEST_F(ReferenceFile, IsRefusedInOneLineWhenItIsNoReference) {
    saveReference(smallReference(), file());
    const std::string good = read();
    const auto with = [&](const std::string& old, const std::string& fresh) {
        std::string text = good;
        return text.replace(text.find(old), old.size(), fresh);
    };
    const struct {
        std::string text;
        const char* line;
    } cases[] = {
        {"", ":1:1: found the end of the file, allowed: a JSON object"},
        {"{\"format\":\n x", ":2:2: found \"x\", allowed: a JSON object"},
        {std::string(100'000, '['), "found values nested too deep, allowed: 2 levels"},
        {manyMembers(40'000), "found too many lists, objects and texts, allowed: at most 64"},
        {"[]", "found no member \"format\" of \"rotavue reference orbit 1\""},
        {"{}", "found no member \"format\""},
        {with("orbit 1", "orbit 2"), "found no member \"format\""},
        {with("\"unit\"", "\"Unit\""), "found no member \"unit\""},
        {with("300.5", "\"fast\""), "\"speed_rpm\", allowed: a number from 0 to 1000000000000"},
        {with("45.0", "1e999"), "found a number beyond all bounds"},
        {with("\"averages\": 25", "\"averages\": 2.5"), "\"averages\", allowed: a whole number"},
        {with("\"revolutions\": 2", "\"revolutions\": 3"), "\"x\", allowed: a list of 6 numbers"},
        {with("-2.5", "null"), "\"x\", allowed: a list of 4 numbers"},
        {with("\"points_per_turn\": 2", "\"points_per_turn\": 1e9"), "a number from 1 to 4096"},
    };
    for (const auto& one : cases) {
        write(one.text);
        const std::string line = refusalOf([&] { loadReference(file()); });
        EXPECT_NE(line.find(one.line), std::string::npos) << line;
        EXPECT_NE(line.find("slow roll.json"), std::string::npos) << line;
    }
}

TEST_F(ReferenceFile, IsRefusedWhenThereIsNoFile) {
    const std::string line = refusalOf([&] { loadReference(file()); });
    EXPECT_NE(line.find("no such file"), std::string::npos) << line;
}

TEST_F(ReferenceFile, IsComparedOnlyWithProbesAtTheSamePlacesInTheSameUnit) {
    const ReferenceOrbit reference = smallReference();
    Recording recording;
    recording.machine.xAngle = 45.0;
    recording.machine.yAngle = 315.0;
    EXPECT_EQ(refusalOf([&] { checkComparable(reference, recording); }), "");
    recording.machine.unit = "mil";
    EXPECT_EQ(refusalOf([&] { checkComparable(reference, recording); }),
              "the reference orbit is in \"um\", and the recording in \"mil\"");
    recording.machine.unit = "um";
    recording.machine.yAngle = 0.0;
    EXPECT_EQ(refusalOf([&] { checkComparable(reference, recording); }),
              "the reference orbit has its probes at 45 and 315 degrees, and the recording at 45 "
              "and 0 degrees");
}

}  // namespace
}  // namespace Rotavue::Workbench
