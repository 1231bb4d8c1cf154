#include "tests/cli/command_test.h"

#include <csignal>

namespace Rotavue::Cli {

namespace {

using Names = std::vector<std::string>;

class RenderTest : public CommandTest {
protected:
    RenderTest() { writeRotor("rotor.csv"); }
};

std::uint32_t bigEndian(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8U | static_cast<unsigned char>(bytes.at(at + i));
    return value;
}

TEST_F(RenderTest, MakesAPictureOfTheSizeThatWasAskedFor) {
    const ProcessEnd end =
        rotavue({"render", "rotor.csv", "-o", "p.png", "--size", "320x240", "--scale", "2"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.out, "");
    EXPECT_TRUE(end.error.ends_with("p.png: 640 x 480 pixels\n")) << end.error;
    const std::string png = read("p.png");
    EXPECT_EQ(png.find("\x89PNG\r\n\x1a\n"), 0U);
    EXPECT_EQ(bigEndian(png, 16), 640U);  // behind signature, length and "IHDR"
    EXPECT_EQ(bigEndian(png, 20), 480U);
}

TEST_F(RenderTest, EndingOrFormatChoosesTheKindOfFile) {
    const auto beginning = [this](const std::string& name, std::vector<std::string> more) {
        std::vector<std::string> arguments{"render", "rotor.csv", "-o", name};
        arguments.insert(arguments.end(), more.begin(), more.end());
        EXPECT_EQ(rotavue(arguments).status, 0) << name;
        return read(name).substr(0, 5);
    };
    EXPECT_EQ(beginning("p.svg", {}), "<?xml");
    EXPECT_EQ(beginning("p.PDF", {}), "%PDF-");
    EXPECT_EQ(beginning("p.dat", {"--format", "pdf"}), "%PDF-");
}

TEST_F(RenderTest, PictureOnStandardOutputIsTheOneInAFile) {
    ASSERT_EQ(rotavue({"render", "rotor.csv", "-o", "p.png"}).status, 0);
    const ProcessEnd end = rotavue({"render", "rotor.csv", "-o", "-", "--format", "png", "-q"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_TRUE(end.out == read("p.png"));
}

TEST_F(RenderTest, SameCommandGivesTheSameBytes) {
    for (const char* name : {"p.png", "p.svg"}) {
        const std::vector<std::string> arguments{"render", "rotor.csv", "-o", name, "--force"};
        ASSERT_EQ(rotavue(arguments).status, 0);
        const std::string first = read(name);
        ASSERT_EQ(rotavue(arguments).status, 0);
        EXPECT_TRUE(first == read(name)) << name;
    }
}

TEST_F(RenderTest, FileThatIsThereIsReplacedWithForceAlone) {
    write("p.png", "old");
    const ProcessEnd refused = rotavue({"render", "rotor.csv", "-o", "p.png"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.error, "rotavue render: p.png: the file is there; --force replaces it\n");
    EXPECT_EQ(read("p.png"), "old");
    EXPECT_EQ(rotavue({"render", "rotor.csv", "-o", "p.png", "--force"}).status, 0);
    EXPECT_EQ(read("p.png").find("\x89PNG"), 0U);
    EXPECT_EQ(names(), (Names{"p.png", "rotor.csv"}));
}

TEST_F(RenderTest, FullDiskLeavesTheOldPictureAndNothingElse) {
    write("p.png", "old");
    ProcessOrder render = order({"render", "rotor.csv", "-o", "p.png", "--force"});
    render.largestFile = 1000;  // no picture of 800 x 600 is that small
    const ProcessEnd end = runProcess(render);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "rotavue render: p.png: File too large\n");
    EXPECT_EQ(read("p.png"), "old");
    EXPECT_EQ(names(), (Names{"p.png", "rotor.csv"}));
}

TEST_F(RenderTest, PlaceThatTakesNoFileIsToldByName) {
    std::filesystem::create_directory(at("folder.png"));
    EXPECT_EQ(rotavue({"render", "rotor.csv", "-o", "folder.png"}).error,
              "rotavue render: folder.png: is a folder\n");
    EXPECT_EQ(rotavue({"render", "rotor.csv", "-o", "none/p.png"}).error,
              "rotavue render: none/p.png: the folder is not there\n");
    EXPECT_EQ(names(), (Names{"folder.png", "rotor.csv"}));
}

TEST_F(RenderTest, ModuleThatCannotBeLoadedFailsWithoutAPicture) {
    write("no.vc", "no library");
    const ProcessEnd end = rotavue({"render", "rotor.csv", "-o", "p.png", "--module", "no.vc"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error.find("rotavue render: "), 0U) << end.error;
    EXPECT_NE(end.error.find("no.vc"), std::string::npos) << end.error;
    EXPECT_EQ(names(), (Names{"no.vc", "rotor.csv"}));
}

TEST_F(RenderTest, WhatARecordingLacksIsToldWithTheWayOut) {
    write("bare.csv", "t,x,y\n0,1,2\n1,2,3\n2,1,2\n");
    EXPECT_EQ(rotavue({"render", "bare.csv", "-o", "p.png", "--revolutions", "2"}).error,
              "rotavue render: bare.csv: it has no keyphasor, which --revolutions needs; --time "
              "does without\n");
    EXPECT_EQ(rotavue({"render", "rotor.csv", "-o", "p.png", "--clearance"}).error,
              "rotavue render: rotor.csv: no clearance is known: --clearance-width tells it\n");
    // The last of 2,000 samples is 1.999 s after the first.
    EXPECT_EQ(rotavue({"render", "rotor.csv", "-o", "p.png", "--at", "2"}).error,
              "rotavue render: rotor.csv: --at 2: the last sample is at 1.999 s\n");
    EXPECT_EQ(names(), (Names{"bare.csv", "rotor.csv"}));
}

TEST_F(RenderTest, OneBearingAlone) {
    writeRotor("other.csv");
    write("other.machine.json", R"({"x": {"angle": 10}})");
    const ProcessEnd end = rotavue({"render", "rotor.csv", "other.csv", "-o", "p.png"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "rotavue render: other.csv: its probe angles, clearance or rotation are not those of "
              "rotor.csv: one picture shows one bearing\n");
}

TEST_F(RenderTest, RegisteredModuleDraws) {
    std::filesystem::copy_file(moduleFile(), at("moved.vc"));
    ASSERT_EQ(rotavue({"register", "--user", "--module", at("moved.vc").string()}).status, 0);
    EXPECT_EQ(rotavue({"render", "rotor.csv", "-o", "p.png"}).status, 0);
    std::filesystem::remove(at("moved.vc"));
    const ProcessEnd end = rotavue({"render", "rotor.csv", "-o", "q.png"});
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.error.find("moved.vc"), std::string::npos) << end.error;
}

}  // namespace

}  // namespace Rotavue::Cli
