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
    static void TearDownTestSuite() { std::cout << tried_ << " failing allocations in all\n"; }

    static inline std::int64_t tried_ = 0;
};

std::int64_t allocationsOf(const FaultSession& session) {
    const std::int64_t before = MemoryMeter::tried();
    session.playQuietly();
    return MemoryMeter::tried() - before;
}

/// Plays it with the n-th allocation failing. The error may leave a message and be a line of the
/// log, or hit the player itself and leave it, and then there is no log; either way the failure
/// must have come.
LogLines playStarved(const FaultSession& session, std::int64_t n) {
    LogLines log;
    MemoryMeter::failAt(n);
    try {
        log = session.playQuietly();
    } catch (const LoadError&) {  // the module makes no control
    } catch (const std::bad_alloc&) {
    }
    EXPECT_TRUE(MemoryMeter::failNoMore());
    return log;
}

/// One failure hits one message, so that the closing frame is drawn wherever something before it
/// was hit. A log that broke off tells nothing.
void expectGoesOn(const FaultSession& session, const LogLines& sound, std::int64_t n) {
    const LogLines log = playStarved(session, n);
    if (session.hasOwnFault() || log.size() != sound.size() || !closingFrameWorks(sound) ||
        closingFrameWorks(log))
        return;
    EXPECT_TRUE(std::equal(log.begin(), log.end() - 2, sound.begin()) ||
                !LogLine(log[log.size() - 3]).error.empty())
        << "after allocation " << n << ": " << log[log.size() - 2];
}

TEST_P(StarvedSession, LosesNothingAndGoesOnWhateverAllocationFails) {
    const FaultSession session(GetParam());
    const LogLines whole = session.play();
    const LogLines sound = session.playQuietly();
    const std::int64_t count = allocationsOf(session);
    const std::int64_t living = MemoryMeter::living();
    for (std::int64_t n = 1; n <= count; ++n) {
        expectGoesOn(session, sound, n);
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
