#include "host_kit/memory/memory_host.h"

#include <gtest/gtest.h>

#include <limits>

namespace Rotavue::HostKit {
namespace {

class DescribedChannel : public testing::Test {
protected:
    double valueAtTime(double seconds, std::int32_t element = 0) {
        return channel_->getValueAtTime(seconds, cursor_, 0, element, 4);
    }

    MemoryHost host_;
    ChannelDescription& described_ = host_.description.channels["a"];
    Host::Ref<Host::IHostChannel> channel_ = host_.channel("a");
    std::int32_t cursor_ = -1;
};

TEST_F(DescribedChannel, HasTheDocumentedDefaults) {
    EXPECT_EQ(channel_->getName() + channel_->getUnit(), L"");
    EXPECT_EQ(channel_->getColor(), 0U);
    EXPECT_EQ(channel_->getDisplayValue(), 0.0);
    EXPECT_FALSE(channel_->isAsynchronous() || channel_->isArray());
    EXPECT_EQ(channel_->getArraySize(), 1);
    EXPECT_EQ(channel_->getRateDivider(), 1);
    EXPECT_EQ(channel_->getSampleRate(), 0.0);
    EXPECT_EQ(channel_->scaleValue(2.5), 2.5);
    EXPECT_TRUE(channel_->getAxes());
    const std::vector<std::int32_t> zeros{
        channel_->getDecimals(),   channel_->getStorageKind(),   channel_->getSampleCount(),
        channel_->getBufferSize(), channel_->getWritePosition(), channel_->getSampleCounter()};
    EXPECT_EQ(zeros, std::vector<std::int32_t>(6, 0));
}

TEST_F(DescribedChannel, AnswersWhatIsDescribed) {
    described_.name = L"n";
    described_.unit = L"u";
    described_.color = 0xFFFFFFFF;
    described_.displayValue = 1.5;
    described_.decimals = 2;
    described_.asynchronous = described_.array = true;
    described_.arraySize = 3;
    described_.storageKind = 1;
    described_.writePosition = 4;
    described_.sampleCounter = 5;
    described_.rateDivider = 6;
    described_.sampleRate = 7.5;
    described_.scale = {2.0, -1.0};
    EXPECT_EQ(channel_->getName() + channel_->getUnit(), L"nu");
    EXPECT_EQ(channel_->getColor(), 0xFFFFFFFF);
    EXPECT_EQ(channel_->getDisplayValue(), 1.5);
    EXPECT_TRUE(channel_->isAsynchronous() && channel_->isArray());
    EXPECT_EQ(channel_->getSampleRate(), 7.5);
    EXPECT_EQ(channel_->scaleValue(3.0), 5.0);
    const std::vector<std::int32_t> numbers{
        channel_->getDecimals(),      channel_->getArraySize(),     channel_->getStorageKind(),
        channel_->getWritePosition(), channel_->getSampleCounter(), channel_->getRateDivider()};
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{2, 3, 1, 4, 5, 6}));
}

TEST_F(DescribedChannel, HasABufferOfAsManySamplesAsItHoldsUnlessToldOtherwise) {
    described_.sampleCount = 8;
    EXPECT_EQ(channel_->getBufferSize(), 8);
    described_.bufferSize = 0;
    EXPECT_EQ(channel_->getBufferSize(), 0);
    EXPECT_EQ(channel_->getSampleCount(), 8);
}

TEST_F(DescribedChannel, GivesZeroOutsideItsLists) {
    described_.values[4] = {1.0, 2.0};
    described_.values[-7] = {3.0};
    described_.timestamps = {9.0};
    EXPECT_EQ(channel_->getValue(1, 4), 2.0);
    EXPECT_EQ(channel_->getValue(0, -7), 3.0);
    for (const std::int32_t index : {-1, 2, std::numeric_limits<std::int32_t>::min()})
        EXPECT_EQ(channel_->getValue(index, 4), 0.0);
    for (const std::int32_t component : {0, 3, 99, -8})
        EXPECT_EQ(channel_->getValue(0, component), 0.0);
    EXPECT_EQ(channel_->getTimestamp(0), 9.0);
    EXPECT_EQ(channel_->getTimestamp(-1) + channel_->getTimestamp(1), 0.0);
}

TEST_F(DescribedChannel, FindsTheNearestSampleInTimeAndHoldsItInside) {
    described_.sampleRate = 10.0;
    described_.sampleCount = 3;
    described_.values[4] = {1.0, 2.0, 4.0};
    EXPECT_EQ(valueAtTime(0.149), 2.0);  // floor(1.49 + 0.5) = 1
    EXPECT_EQ(cursor_, 1);
    EXPECT_EQ(valueAtTime(0.15), 4.0);  // floor(1.5 + 0.5) = 2
    EXPECT_EQ(valueAtTime(-5.0), 1.0);
    EXPECT_EQ(cursor_, 0);
    EXPECT_EQ(valueAtTime(1e300), 4.0);
    EXPECT_EQ(cursor_, 2);
    EXPECT_EQ(valueAtTime(std::numeric_limits<double>::quiet_NaN()), 1.0);
    described_.sampleCount = 0;
    EXPECT_EQ(valueAtTime(1.0), 1.0);
    EXPECT_EQ(cursor_, 0);
}

TEST_F(DescribedChannel, FindsTheLastTimeStampThatIsNotAbove) {
    described_.asynchronous = true;
    described_.timestamps = {1.0, 2.0, 2.0, 3.0};
    described_.values[4] = {10.0, 20.0, 21.0, 30.0};
    EXPECT_EQ(valueAtTime(0.5), 10.0) << "none is not above: sample 0";
    EXPECT_EQ(valueAtTime(2.0), 21.0);
    EXPECT_EQ(cursor_, 2);
    EXPECT_EQ(valueAtTime(99.0), 30.0);
}

TEST_F(DescribedChannel, FindsTheElementOfAnArrayInTime) {
    described_.sampleRate = 1.0;
    described_.sampleCount = 2;
    described_.arraySize = 3;
    described_.values[4] = {0.0, 1.0, 2.0, 3.0, 4.0, 5.0};
    EXPECT_EQ(valueAtTime(1.0, 2), 5.0);
    described_.arraySize = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(valueAtTime(1.0, std::numeric_limits<std::int32_t>::max()), 0.0);
}

TEST_F(DescribedChannel, GivesItsAxesAsTheyAreNow) {
    described_.axes = {{1.0, 0.5}, {2.0, 0.25}};
    const auto axis = channel_->getAxes()->getAxis(1);
    EXPECT_EQ(axis->getStart() + axis->getStep(), 2.25);
    EXPECT_FALSE(channel_->getAxes()->getAxis(2));
    EXPECT_FALSE(channel_->getAxes()->getAxis(-1));
    described_.axes->resize(1);
    EXPECT_EQ(axis->getStart() + axis->getStep(), 0.0);
    described_.axes.reset();
    EXPECT_FALSE(channel_->getAxes());
}

TEST_F(DescribedChannel, GivesThePropertiesThatAreSet) {
    const auto properties = channel_->getProperties();
    described_.properties[L"Orbit X Angle"] = L"45";
    EXPECT_EQ(properties->getValue(L"Orbit X Angle"), L"45");
    EXPECT_EQ(properties->getValue(L"orbit x angle"), L"");
}

TEST_F(DescribedChannel, GoesBackToTheDefaultsWhenItIsTakenAway) {
    described_.name = L"n";
    host_.description.channels.erase("a");
    EXPECT_EQ(channel_->getName(), L"");
    host_.description.channels["a"].name = L"m";
    EXPECT_EQ(channel_->getName(), L"m");
    host_.description.channels.clear();
    EXPECT_EQ(channel_->getName(), L"");
}

}  // namespace
}  // namespace Rotavue::HostKit
