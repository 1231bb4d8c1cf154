#include "tests/faults/fault_session.h"
#include "tests/support/memory_meter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <new>

namespace Rotavue::HostKit {
namespace {

namespace MemoryMeter = Meridax::Tests::MemoryMeter;

class StarvedSession : public testing::TestWithParam<std::filesystem::path> {
protected:
    static void TearDownTestSuite() {
        std::cout << tried_ << " failing allocations in all, " << logged_
                  << " of them in messages\n";
    }

    static inline std::int64_t tried_ = 0;
    static inline std::int64_t logged_ = 0;
};

LogLines quietLogOf(const FaultSession& session) {
    ReadyLog log;
    session.playQuietly(log);
    return log.lines();
}

std::int64_t allocationsOf(const FaultSession& session) {
    ReadyLog log;
    const std::int64_t before = MemoryMeter::tried();
    session.playQuietly(log);
    return MemoryMeter::tried() - before;
}

/// Plays it with the n-th allocation failing. The error may leave a message and be a line of the
/// log, or hit the player itself and leave it, and then there is no log; either way the failure
/// must have come.
LogLines playStarved(const FaultSession& session, std::int64_t n) {
    ReadyLog log;
    bool ended = false;
    MemoryMeter::failAt(n);
    try {
        session.playQuietly(log);
        ended = true;
    } catch (const LoadError&) {  // the module makes no control
    } catch (const std::bad_alloc&) {
    }
    EXPECT_TRUE(MemoryMeter::failNoMore());
    return ended ? log.lines() : LogLines();
}

bool tellsOfMemory(const std::string& error) {
    return error == R"({"kind":"exception","what":"std::bad_alloc"})" ||
           error.find(R"("status":"0x8007000E")") != std::string::npos;
}

/// A failure that no message tells of: a copy looks at no result of the clipboard, and its text is
/// missing from the log.
bool isPassedOver(const LogLines& sound, LogLines::const_iterator differs) {
    return differs != sound.end() && differs->starts_with("{\"clipboard\"");
}

/// One failure hits one message, which tells of it, and what comes after draws as it would have.
void expectTold(const LogLines& log, const LogLines& sound, std::int64_t n) {
    EXPECT_TRUE(nothingHeld(log)) << "after allocation " << n << ": " << log.back();
    const auto [line, soundLine] =
        std::mismatch(log.begin(), log.end(), sound.begin(), sound.end());
    const bool told = line != log.end() && tellsOfMemory(LogLine(*line).error);
    EXPECT_TRUE(told || isPassedOver(sound, soundLine))
        << "after allocation " << n << ": " << (line != log.end() ? *line : "nothing differs");
    const bool inClosingFrame = log.end() - line == 2;
    if (!inClosingFrame) {
        EXPECT_EQ(closingError(log), "") << "after allocation " << n;
    }
}

TEST_P(StarvedSession, LosesNothingAndGoesOnWhateverAllocationFails) {
    const FaultSession session(GetParam());
    const LogLines whole = session.play();
    const LogLines sound = quietLogOf(session);
    ASSERT_EQ(closingError(sound), "");
    const std::int64_t count = allocationsOf(session);
    const std::int64_t living = MemoryMeter::living();
    for (std::int64_t n = 1; n <= count; ++n) {
        if (const LogLines log = playStarved(session, n); !log.empty()) {
            expectTold(log, sound, n);
            ++logged_;
        }
        ASSERT_EQ(MemoryMeter::living(), living) << "after allocation " << n;
    }
    EXPECT_EQ(session.play(), whole);
    tried_ += count;
}

TEST(MemoryMeter, SeesWhatTheModuleAllocates) {
    const auto module = builtModule();
    const std::int64_t before = MemoryMeter::living();
    auto control = module->makeControl();
    EXPECT_GT(MemoryMeter::living(), before);
    control = nullptr;
    EXPECT_EQ(MemoryMeter::living(), before);
}

std::string testName(const testing::TestParamInfo<std::filesystem::path>& info) {
    std::string name = info.param.lexically_relative(SessionFolder).replace_extension().string();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, StarvedSession, testing::ValuesIn(sessionFiles()), testName);

}  // namespace
}  // namespace Rotavue::HostKit
