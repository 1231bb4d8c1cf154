#include "tests/cli/command_test.h"

#include "tests/plugin/setup_document/c_locale.h"

#include <algorithm>

namespace Rotavue::Cli {

namespace {

namespace fs = std::filesystem;

class PlayTest : public CommandTest {
protected:
    std::string session(const std::string& name) const { return (sessionFolder() / name).string(); }
};

TEST_F(PlayTest, LogIsOnStandardOutput) {
    const ProcessEnd end = rotavue({"play", session("draw/raw_by_time.draw.json")});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(end.out.front(), '{');
    EXPECT_NE(end.out.find("\"references\": 0"), std::string::npos) << end.out.substr(0, 400);
}

TEST_F(PlayTest, EverySessionGivesTheSameBytesInAnotherLocale) {
    const std::string folder = sessionFolder().string();
    ASSERT_EQ(rotavue({"play", folder, "--out", "plain", "--calls", "all"}).status, 0);
    setVariable("LOCPATH", ROTAVUE_TEST_LOCALES);
    setVariable("LC_ALL", "de_DE.UTF-8");
    ASSERT_EQ(rotavue({"play", folder, "--out", "german", "--calls", "all"}).status, 0);
    for (const auto& entry : fs::recursive_directory_iterator(sessionFolder())) {
        if (entry.path().extension() != ".json") continue;
        fs::path name = entry.path().lexically_relative(sessionFolder());
        name.replace_extension("log");
        EXPECT_NE(read("plain/" + name.string()), "") << name;
        EXPECT_TRUE(read("plain/" + name.string()) == read("german/" + name.string())) << name;
    }
}

TEST_F(PlayTest, FolderGivesALogBesideEachPlace) {
    fs::create_directories(at("in/deeper"));
    fs::copy_file(session("draw/nothing_assigned.json"), at("in/one.json"));
    fs::copy_file(session("draw/nothing_assigned.json"), at("in/deeper/two.json"));
    write("in/note.txt", "no session");
    const ProcessEnd end = rotavue({"play", "in", "--out", "logs"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.out + end.error, "");
    const std::string alone = rotavue({"play", "in/one.json"}).out;
    EXPECT_EQ(read("logs/one.log"), alone);
    EXPECT_EQ(read("logs/deeper/two.log"), alone);
    EXPECT_FALSE(fs::exists(at("logs/note.log")));
}

TEST_F(PlayTest, FolderGoesOnAfterAFileThatIsNoSession) {
    fs::create_directory(at("in"));
    write("in/a.json", "{\"steps\": [{\"message\": -1}]}");
    fs::copy_file(session("draw/nothing_assigned.json"), at("in/b.json"));
    const ProcessEnd end = rotavue({"play", "in", "--out", "logs"});
    EXPECT_EQ(end.status, 2);
    EXPECT_EQ(end.error,
              "in/a.json: /steps/0/message: is -1; allowed: a whole number from 0 to "
              "4294967295\n");
    EXPECT_FALSE(fs::exists(at("logs/a.log")));
    EXPECT_TRUE(fs::exists(at("logs/b.log")));
}

TEST_F(PlayTest, WhatIsNoSessionGetsOneLineWithItsPlace) {
    struct Case {
        std::string text;
        std::string line;
    };
    const Case cases[] = {
        {"{\"steps\": [{\"message\": 1, \"args\": 5}]}", "/steps/0/args: is 5; allowed: a list"},
        {"{\"title\": 5, \"steps\": []}", "/title: is 5; allowed: a text"},
        {"[]", "(the whole file): is a list; allowed: an object"},
        {"t,x,y\n0,1,2\n", "(the whole file): is no JSON at line 1, column 2: invalid literal"},
    };
    for (const Case& c : cases) {
        write("s.json", c.text);
        const ProcessEnd end = rotavue({"play", "s.json"});
        EXPECT_EQ(end.status, 2) << c.text;
        EXPECT_EQ(end.out, "") << c.text;
        EXPECT_EQ(end.error, "s.json: " + c.line + '\n');
    }
}

TEST_F(PlayTest, WrongUseIsToldApartFromWrongSessions) {
    EXPECT_EQ(rotavue({"play", "none.json"}).error, "none.json: cannot be read\n");
    EXPECT_EQ(rotavue({"play", "none.json"}).status, 2);
    EXPECT_EQ(rotavue({"play", "."}).error,
              "rotavue play: a folder of sessions needs --out FOLDER for the logs" +
                  moreHelp("rotavue play"));
    write("s.json", "{\"steps\": []}");
    EXPECT_EQ(rotavue({"play", "s.json", "--out", "logs"}).status, 2);
    EXPECT_EQ(rotavue({"play", "s.json", "--calls", "drawing"}).status, 2);
    EXPECT_EQ(names(), std::vector<std::string>{"s.json"});
}

TEST_F(PlayTest, ModuleThatCannotBeLoadedHasAStatusOfItsOwn) {
    write("s.json", "{\"steps\": []}");
    const ProcessEnd end = rotavue({"play", "s.json", "--module", "none.vc"});
    EXPECT_EQ(end.status, 3);
    EXPECT_EQ(std::count(end.error.begin(), end.error.end(), '\n'), 1) << end.error;
}

TEST_F(PlayTest, PictureIsPaintedBesideTheLog) {
    const std::string file = session("draw/raw_by_time.draw.json");
    const ProcessEnd end = rotavue({"play", file, "--picture", "p.png"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(end.out, rotavue({"play", file}).out);
    EXPECT_EQ(read("p.png").find("\x89PNG"), 0U);
    const ProcessEnd again = rotavue({"play", file, "--picture", "p.png"});
    EXPECT_EQ(again.status, 1);
    EXPECT_EQ(again.error, "rotavue play: p.png: the file is there; --force replaces it\n");
}

TEST_F(PlayTest, SessionWithoutAFrameLeavesNoPicture) {
    write("s.json", "{\"steps\": []}");
    const ProcessEnd end = rotavue({"play", "s.json", "--picture", "p.png"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "rotavue play: the session draws no frame: there is no picture\n");
    EXPECT_EQ(names(), std::vector<std::string>{"s.json"});
}

TEST_F(PlayTest, LogThatCannotBeWrittenFails) {
    ProcessOrder play = order({});
    play.arguments = {
        "/bin/sh", "-c",
        programFile() + " play " + session("draw/raw_by_time.draw.json") + " > /dev/full"};
    const ProcessEnd end = runProcess(play);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "the log: cannot be written\n");
}

}  // namespace

}  // namespace Rotavue::Cli
