#include "host_kit/session/play.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace Rotavue::HostKit {
namespace {

namespace fs = std::filesystem;

class Play : public testing::Test {
protected:
    Play() {
        fs::remove_all(folder_);
        fs::create_directories(folder_ / "in" / "deeper");
        options_.module = SCRIPTED_MODULE;
    }

    ~Play() override { fs::remove_all(folder_); }

    fs::path write(const std::string& name, const std::string& text) const {
        std::ofstream(folder_ / name) << text;
        return folder_ / name;
    }

    static std::string read(const fs::path& file) {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }

    PlayStatus play(const fs::path& file) { return playSession(file, options_, log_, errors_); }

    const fs::path folder_ = fs::path(testing::TempDir()) / "rotavue_play";
    PlayOptions options_;
    std::ostringstream log_;
    std::ostringstream errors_;
};

const std::string Good = R"({"steps": [{"message": 203}]})";
const std::string GoodLog = R"({"step": 0, "message": 203, "status": 3, "result": -5})"
                            "\n"
                            R"({"end": {"setup": {}, "references": 0}})"
                            "\n";

TEST_F(Play, IsDoneWhenAllStepsWereSent) {
    EXPECT_EQ(play(write("a.json", Good)), PlayStatus::Done);
    EXPECT_EQ(log_.str(), GoodLog);
    EXPECT_EQ(errors_.str(), "");
}

TEST_F(Play, IsDoneAlsoWhereAMessageThrew) {
    EXPECT_EQ(play(write("a.json", R"({"steps": [{"message": 100}]})")), PlayStatus::Done);
}

TEST_F(Play, RefusesWhatIsNoSessionInOneLine) {
    const fs::path file = write("a.json", R"({"steps": [{"message": 203}, 5]})");
    EXPECT_EQ(play(file), PlayStatus::NoSession);
    EXPECT_EQ(log_.str(), "") << "nothing is sent before the whole file was found good";
    EXPECT_EQ(errors_.str(),
              file.string() +
                  ": /steps/1: is 5; allowed: an object with message, patch, widget, fail or "
                  "release\n");
}

TEST_F(Play, RefusesWhatCannotBeRead) {
    EXPECT_EQ(play(folder_ / "missing.json"), PlayStatus::NoSession);
    EXPECT_EQ(play(folder_ / "in"), PlayStatus::NoSession);
    EXPECT_EQ(errors_.str(), (folder_ / "missing.json").string() + ": cannot be read\n" +
                                 (folder_ / "in").string() + ": cannot be read\n");
}

TEST_F(Play, NeedsThePlugIn) {
    options_.module = "/nowhere.vc";
    EXPECT_EQ(play(write("a.json", Good)), PlayStatus::NoModule);
    EXPECT_EQ(log_.str(), "");
    EXPECT_EQ(errors_.str().find("the module cannot be loaded: /nowhere.vc"), 0U);
}

TEST_F(Play, SaysWhereALogCannotBeWritten) {
    log_.setstate(std::ios::badbit);
    EXPECT_EQ(play(write("a.json", Good)), PlayStatus::NoOutput);
    EXPECT_EQ(errors_.str(), "the log: cannot be written\n");
}

TEST_F(Play, PlaysAllSessionsBelowAFolder) {
    write("in/b.json", Good);
    write("in/deeper/c.json", Good);
    write("in/notes.txt", "no session");
    EXPECT_EQ(playFolder(folder_ / "in", folder_ / "out", options_, errors_), PlayStatus::Done);
    EXPECT_EQ(read(folder_ / "out" / "b.log"), GoodLog);
    EXPECT_EQ(read(folder_ / "out" / "deeper" / "c.log"), GoodLog);
    EXPECT_FALSE(fs::exists(folder_ / "out" / "notes.log"));
}

TEST_F(Play, GoesOnAfterASessionThatIsNone) {
    write("in/a.json", "{}");
    write("in/b.json", Good);
    EXPECT_EQ(playFolder(folder_ / "in", folder_ / "out", options_, errors_),
              PlayStatus::NoSession);
    EXPECT_EQ(read(folder_ / "out" / "b.log"), GoodLog);
    EXPECT_FALSE(fs::exists(folder_ / "out" / "a.log"));
}

TEST_F(Play, PassesOverLinksThatLeadNowhere) {
    fs::create_symlink("missing.json", folder_ / "in" / "a.json");
    fs::create_symlink("b.json", folder_ / "in" / "b.json");
    write("in/c.json", Good);
    EXPECT_EQ(playFolder(folder_ / "in", folder_ / "out", options_, errors_), PlayStatus::Done);
    EXPECT_EQ(errors_.str(), "");
    EXPECT_EQ(read(folder_ / "out" / "c.log"), GoodLog);
}

TEST_F(Play, NeedsAFolderThatIsThere) {
    EXPECT_EQ(playFolder(folder_ / "none", folder_ / "out", options_, errors_),
              PlayStatus::NoSession);
    EXPECT_EQ(errors_.str(), (folder_ / "none").string() + ": cannot be read\n");
}

}  // namespace
}  // namespace Rotavue::HostKit
