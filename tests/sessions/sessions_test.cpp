#include "tests/plugin/setup_document/c_locale.h"
#include "tests/sessions/log_difference.h"
#include "tests/sessions/session_files.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

namespace fs = std::filesystem;

class PlayedSession : public testing::TestWithParam<fs::path> {};

std::string testName(const testing::TestParamInfo<fs::path>& info) {
    std::string name = info.param.lexically_relative(SessionFolder).replace_extension().string();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

void leave(const fs::path& session, const std::string& log) {
    fs::path file = GotFolder / session.lexically_relative(SessionFolder);
    fs::create_directories(file.parent_path());
    std::ofstream(file.replace_extension("log"), std::ios::binary) << log;
}

TEST_P(PlayedSession, GivesTheLogBesideIt) {
    const fs::path file = GetParam();
    const std::string got = logOf(file, groupsOf(file));
    leave(file, got);
    const std::string expected = readText(fs::path(file).replace_extension("log"));
    EXPECT_TRUE(got == expected) << file.string() << "\n"
                                 << logDifference(expected, got)
                                 << "look at it and take it with tools/approve";
}

TEST_P(PlayedSession, GivesTheSameBytesAgain) {
    EXPECT_EQ(logOf(GetParam(), allGroups()), logOf(GetParam(), allGroups()));
}

TEST_P(PlayedSession, LeavesNothingHeld) {
    const std::string log = logOf(GetParam(), {});
    EXPECT_NE(log.find("\"references\": 0}}\n"), std::string::npos) << log;
}

INSTANTIATE_TEST_SUITE_P(All, PlayedSession, testing::ValuesIn(sessionFiles()), testName);

TEST(PlayedInAnotherLocale, SessionsGiveTheSameLogs) {
    PlayOptions options;
    options.module = BUILT_MODULE;
    options.log.groups = allGroups();
    const fs::path out = GotFolder / "in_german";
    std::ostringstream errors;
    {
        const Meridax::Tests::GlobalLocale german("de_DE.UTF-8");
        ASSERT_EQ(std::localeconv()->decimal_point, std::string(","));
        EXPECT_EQ(playFolder(SessionFolder, out, options, errors), PlayStatus::Done);
    }
    EXPECT_EQ(errors.str(), "");
    for (const fs::path& file : sessionFiles()) {
        fs::path log = out / file.lexically_relative(SessionFolder);
        EXPECT_EQ(readText(log.replace_extension("log")), logOf(file, allGroups()));
    }
    fs::remove_all(out);
}

}  // namespace
}  // namespace Rotavue::HostKit
