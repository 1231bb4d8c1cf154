#include "tests/faults/fault_session.h"
#include "tests/support/memory_meter.h"

#include <gtest/gtest.h>

#include <iostream>
#include <new>

namespace Rotavue::HostKit {
namespace {

namespace MemoryMeter = Meridax::Tests::MemoryMeter;

class StarvedSession : public testing::TestWithParam<std::filesystem::path> {};

std::int64_t allocationsOf(const FaultSession& session) {
    const std::int64_t before = MemoryMeter::tried();
    session.playQuietly();
    return MemoryMeter::tried() - before;
}

/// Plays it with the n-th allocation failing. The error may leave a message and be a line of the
/// log, or hit the player itself and leave it; either way the failure must have come.
void playStarved(const FaultSession& session, std::int64_t n) {
    MemoryMeter::failAt(n);
    try {
        session.playQuietly();
    } catch (const LoadError&) {  // the module makes no control
    } catch (const std::bad_alloc&) {
    }
    EXPECT_TRUE(MemoryMeter::failNoMore());
}

TEST_P(StarvedSession, LosesNothingWhateverAllocationFails) {
    const FaultSession session(GetParam());
    const LogLines sound = session.play();
    session.playQuietly();
    const std::int64_t count = allocationsOf(session);
    const std::int64_t living = MemoryMeter::living();
    for (std::int64_t n = 1; n <= count; ++n) {
        playStarved(session, n);
        ASSERT_EQ(MemoryMeter::living(), living) << "after allocation " << n;
    }
    EXPECT_EQ(session.play(), sound);
    std::cout << count << " failing allocations\n";
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
