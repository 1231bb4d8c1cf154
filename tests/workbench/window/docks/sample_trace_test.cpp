#include "workbench/window/docks/sample_trace.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace Rotavue::Workbench {
namespace {

TEST(SampleTrace, RangeIsThatOfEachSampleHoweverTheBlocksLie) {
    // A saw: neighbours differ, so that a sample too many or too few shows.
    std::vector<double> samples(3 * SampleTrace::BlockLength + 100);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<double>(i * 7919 % 1601);
    const SampleTrace trace(samples, 1000.0);
    for (const std::size_t first : {0U, 1U, 511U, 512U, 513U, 1023U, 1500U}) {
        for (const std::size_t length : {1U, 2U, 511U, 512U, 513U, 1024U, 1030U}) {
            const std::size_t end = std::min(first + length, samples.size());
            const auto range = trace.rangeOf(first, first + length);
            const auto from = samples.begin() + static_cast<std::ptrdiff_t>(first);
            const auto to = samples.begin() + static_cast<std::ptrdiff_t>(end);
            ASSERT_TRUE(range);
            EXPECT_EQ(range->from, *std::min_element(from, to)) << first << ' ' << length;
            EXPECT_EQ(range->to, *std::max_element(from, to)) << first << ' ' << length;
        }
    }
}

TEST(SampleTrace, GapsCountForNothing) {
    std::vector<double> samples(2000, NAN);
    samples[600] = 4.0;
    const SampleTrace trace(samples, 1000.0);
    EXPECT_EQ(trace.rangeOf(0, 2000), (PlotRange{4.0, 4.0}));
    EXPECT_FALSE(trace.rangeOf(1024, 2000));
    EXPECT_FALSE(trace.rangeOf(601, 700));
    EXPECT_FALSE(trace.rangeOf(5, 5));
    EXPECT_FALSE(trace.rangeOf(5000, 6000));
}

TEST(SampleTrace, SampleOfItsOwnTimeIsFound) {
    const std::vector<double> samples(1000, 0.0);
    const SampleTrace trace(samples, 2560.0);
    for (std::size_t i = 0; i < samples.size(); ++i)
        EXPECT_EQ(trace.firstFrom(trace.timeOf(i)), i);
    EXPECT_EQ(trace.firstFrom(-3.0), 0U);
    EXPECT_EQ(trace.firstFrom(1e30), 1000U);
}

TEST(SampleTrace, ValueBetweenSamplesIsOnTheLine) {
    const std::vector<double> samples{10.0, 20.0, NAN, 40.0};
    const SampleTrace trace(samples, 10.0);
    EXPECT_EQ(trace.valueAt(0.0), 10.0);
    EXPECT_NEAR(trace.valueAt(0.05).value(), 15.0, 1e-9);
    EXPECT_FALSE(trace.valueAt(0.15));  // toward the gap
    EXPECT_FALSE(trace.valueAt(0.31));
    EXPECT_FALSE(trace.valueAt(-0.01));
    EXPECT_FALSE(SampleTrace().valueAt(0.0));
}

TEST(SampleTrace, LastKnownSampleIsTheOneBeforeAGap) {
    const std::vector<double> samples{NAN, 20.0, 30.0, NAN, NAN, 60.0};
    const SampleTrace trace(samples, 10.0);
    EXPECT_FALSE(trace.lastKnown(0.0));
    EXPECT_EQ(trace.lastKnown(0.15), 1U);
    EXPECT_EQ(trace.lastKnown(0.2), 2U);
    EXPECT_EQ(trace.lastKnown(0.45), 2U);
    EXPECT_EQ(trace.lastKnown(9.0), 5U);
    EXPECT_FALSE(SampleTrace().lastKnown(1.0));
}

TEST(SampleTrace, KeepsTheOwnerOfItsSamples) {
    const auto samples = std::make_shared<std::vector<double>>(10, 3.0);
    const auto trace = std::make_unique<SampleTrace>(*samples, 1.0, samples);
    EXPECT_EQ(samples.use_count(), 2);
}

}  // namespace
}  // namespace Rotavue::Workbench
