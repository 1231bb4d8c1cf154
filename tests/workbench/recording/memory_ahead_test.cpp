#include "workbench/recording/memory_ahead.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Rotavue::Workbench {
namespace {

using Columns = std::vector<std::vector<double>>;

constexpr std::size_t ManyValues = MemoryAhead::LeastSize / sizeof(double);

// All whole pages: what is left is less than one of 4096 bytes at each end.
TEST(MemoryAhead, TakesAllOfEachLargeColumn) {
    Columns columns(2);
    columns[0].reserve(ManyValues);
    columns[1].reserve(ManyValues + 1000);
    MemoryAhead ahead{std::span(columns)};
    const std::size_t taken = ahead.taken();
    if (taken == 0) GTEST_SKIP() << "the system gives memory as it is written alone";
    const std::size_t whole = (2 * ManyValues + 1000) * sizeof(double);
    EXPECT_LE(taken, whole);
    EXPECT_GT(taken, whole - 4 * 4096);
    EXPECT_EQ(taken % 4096, 0U);
}

TEST(MemoryAhead, LeavesWhatIsWrittenMeanwhile) {
    Columns columns(3);
    for (std::vector<double>& column : columns)
        column.reserve(ManyValues);
    MemoryAhead ahead{std::span(columns)};
    for (std::vector<double>& column : columns)
        column.resize(ManyValues, 4.25);
    ahead.taken();
    for (const std::vector<double>& column : columns)
        EXPECT_EQ(std::count(column.begin(), column.end(), 4.25), std::ptrdiff_t{ManyValues});
}

TEST(MemoryAhead, LeavesSmallColumnsAlone) {
    Columns columns(2);
    columns[0].reserve(ManyValues - 1);
    EXPECT_EQ(MemoryAhead(std::span(columns)).taken(), 0U);
    EXPECT_EQ(MemoryAhead(std::span<std::vector<double>>()).taken(), 0U);
}

}  // namespace
}  // namespace Rotavue::Workbench
