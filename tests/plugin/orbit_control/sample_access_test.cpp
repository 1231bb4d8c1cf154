#include "tests/plugin/orbit_control/control_test.h"

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::int32_t Smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

/// A ring buffer of five samples 0, 10, 20, 30, 40 of which the third was written last.
class RunningSample : public ControlTest {
protected:
    RunningSample() {
        described.sampleCount = 5;
        described.writePosition = 3;
        described.sampleCounter = 100;
        described.values[4] = {0.0, 10.0, 20.0, 30.0, 40.0};
        host.description.host.acquiredSampleCount = 100;
    }

    double sample(std::int32_t back) { return key.getSample(*host.channel("c"), back, 0, 4); }

    HostKit::ChannelDescription& described = channel("c");
};

TEST_F(RunningSample, IsFetchedCallByCall) {
    EXPECT_EQ(callsOf([&] { sample(0); }), (Lines{
                                               R"(IHostApp.isAcquiring() -> true)",
                                               R"(IHostChannel.isAsynchronous[c]() -> false)",
                                               R"(IHostChannel.getSampleCounter[c]() -> 100)",
                                               R"(IHostApp.getData() -> "data")",
                                               R"(IHostData.getAcquiredSampleCount() -> 100)",
                                               R"(IHostChannel.getRateDivider[c]() -> 1)",
                                               R"(IHostChannel.getWritePosition[c]() -> 3)",
                                               R"(IHostChannel.getSampleCount[c]() -> 5)",
                                               R"(IHostChannel.getArraySize[c]() -> 1)",
                                               R"(IHostChannel.getValue[c](2, 4) -> 20)",
                                           }));
}

TEST_F(RunningSample, BeforeTheStartOfTheRingStandsAtItsEnd) {
    const double expected[] = {20.0, 10.0, 0.0, 40.0, 30.0};  // 3 - back - 1, then + 5
    for (std::int32_t back = 0; back < 5; ++back)
        EXPECT_EQ(sample(back), expected[back]) << back;
    const Lines calls = callsOf([&] { sample(3); });
    EXPECT_EQ(linesOf(calls, "IHostChannel.getBufferSize").size(), 1U);
    EXPECT_EQ(calls.back(), "IHostChannel.getValue[c](4, 4) -> 40");
}

TEST_F(RunningSample, BufferSizeIsAddedOnce) {
    // 3 - 12 - 1 + 5 = -5, which is not above the count: the host is asked all the same.
    EXPECT_EQ(callsOf([&] { sample(12); }).back(), "IHostChannel.getValue[c](-5, 4) -> 0");
}

TEST_F(RunningSample, AsynchronousChannelCountsBackInItsOwnRing) {
    described.asynchronous = true;
    EXPECT_EQ(callsOf([&] { sample(1); }), (Lines{
                                               R"(IHostApp.isAcquiring() -> true)",
                                               R"(IHostChannel.isAsynchronous[c]() -> true)",
                                               R"(IHostChannel.getWritePosition[c]() -> 3)",
                                               R"(IHostChannel.getSampleCount[c]() -> 5)",
                                               R"(IHostChannel.getArraySize[c]() -> 1)",
                                               R"(IHostChannel.getValue[c](1, 4) -> 10)",
                                           }));
}

TEST_F(RunningSample, EmptyChannelReadsAsZero) {
    described.sampleCount = 0;
    described.writePosition = 0;
    described.bufferSize = 5;
    described.values[4] = {9.0, 9.0, 9.0, 9.0, 9.0};
    const Lines calls = callsOf([&] { EXPECT_EQ(sample(0), 0.0); });
    EXPECT_EQ(calls.back(), "IHostChannel.getSampleCount[c]() -> 0") << "0 - 1 + 5 is above it";
}

TEST_F(RunningSample, PlaceEqualToTheCountIsAskedFor) {
    described.sampleCount = 2;
    described.bufferSize = 5;
    EXPECT_EQ(sample(0), 20.0) << "the count 2 is not less than the place 2";
    described.sampleCount = 1;
    EXPECT_EQ(sample(0), 0.0);
}

TEST_F(RunningSample, ReducedRateIsDividedTowardZero) {
    described.rateDivider = 2;
    // (0 - back) / 2 is 0, 0, -1, -1, -2.
    const double expected[] = {20.0, 20.0, 10.0, 10.0, 0.0};
    for (std::int32_t back = 0; back < 5; ++back)
        EXPECT_EQ(sample(back), expected[back]) << back;
}

TEST_F(RunningSample, ChannelBehindTheMasterClockIsReadEarlier) {
    described.sampleCounter = 98;
    EXPECT_EQ(sample(0), 0.0) << "3 - 2 - 1 = 0";
    described.sampleCounter = 101;
    EXPECT_EQ(sample(0), 30.0) << "3 + 1 - 1 = 3";
}

TEST_F(RunningSample, CountersMayTurnOver) {
    described.sampleCounter = Smallest;
    host.description.host.acquiredSampleCount = Largest;
    EXPECT_EQ(sample(0), 30.0) << "one sample ahead";
}

TEST_F(RunningSample, RateDividerOfZeroIsAnInvalidArgument) {
    described.rateDivider = 0;
    host.record();
    expectHostError(0x80070057, [&] { sample(0); });
    EXPECT_EQ(host.calls().back(), "IHostChannel.getRateDivider[c]() -> 0");
}

TEST_F(RunningSample, HostileNumbersDoNotTrap) {
    described.sampleCounter = Smallest;
    host.description.host.acquiredSampleCount = 0;
    described.rateDivider = -1;
    // -2147483648 / -1 turns over to itself; + 3 - 1 + 5 = -2147483641.
    EXPECT_EQ(callsOf([&] { sample(0); }).back(), "IHostChannel.getValue[c](-2147483641, 4) -> 0");
    described.writePosition = Smallest;
    EXPECT_EQ(sample(Largest), 0.0);
    EXPECT_EQ(sample(Smallest), 0.0);
}

TEST_F(RunningSample, ElementsStandSideBySide) {
    described.arraySize = 4;
    EXPECT_EQ(callsOf([&] { key.getSample(*host.channel("c"), 0, 3, 0); }).back(),
              "IHostChannel.getValue[c](11, 0) -> 0");  // 4 * 2 + 3
}

TEST_F(RunningSample, LinearIndexTurnsOverAt32Bits) {
    described.arraySize = 1 << 30;
    described.writePosition = 5;
    // 2^30 * 4 + 1 = 2^32 + 1.
    EXPECT_EQ(callsOf([&] { key.getSample(*host.channel("c"), 0, 1, 4); }).back(),
              "IHostChannel.getValue[c](1, 4) -> 10");
}

TEST_F(RunningSample, LatestArrayValueNeedsNoCounter) {
    described.arraySize = 2;
    EXPECT_EQ(callsOf([&] { key.getLatestArrayValue(*host.channel("c"), 1, 4); }),
              (Lines{
                  R"(IHostApp.isAcquiring() -> true)",
                  R"(IHostChannel.getWritePosition[c]() -> 3)",
                  R"(IHostChannel.getSampleCount[c]() -> 5)",
                  R"(IHostChannel.getArraySize[c]() -> 2)",
                  R"(IHostChannel.getValue[c](5, 4) -> 0)",
              }));
    described.writePosition = 0;
    EXPECT_EQ(linesOf(callsOf([&] { key.getLatestArrayValue(*host.channel("c"), 0, 4); }),
                      "IHostChannel.getValue"),
              Lines{"IHostChannel.getValue[c](8, 4) -> 0"});  // (0 - 1 + 5) * 2
    described.sampleCount = 3;
    described.bufferSize = 5;
    EXPECT_EQ(key.getLatestArrayValue(*host.channel("c"), 0, 4), 0.0) << "3 is less than 4";
}

TEST_F(RunningSample, NullDataIsAnInvalidPointer) {
    host.gate.setNulls(HostKit::Operations{}.set(indexOf(HostKit::operation("IHostApp.getData"))));
    expectHostError(0x80004003, [&] { sample(0); });
}

/// Stored data with the cursor at 0.25 s, and a channel of 100 Hz whose sample n is n.
class StoredSample : public ControlTest {
protected:
    StoredSample() {
        host.description.host.acquiring = false;
        host.description.host.currentPosition = {2, 500};
        described.sampleRate = 100.0;
        described.sampleCount = 50;
        for (int n = 0; n < 50; ++n)
            described.values[4].push_back(n);
    }

    double sample(std::int32_t back) { return key.getSample(*host.channel("c"), back, 0, 4); }

    HostKit::ChannelDescription& described = channel("c");
};

TEST_F(StoredSample, IsFetchedByTimeCallByCall) {
    described.scale = {2.0, 1.0};
    control.sampleCursor = 7;
    // (2 * 1000 + 500) / 10000 - 5 * 0.01 = 0.2 s: sample 20, scaled to 2 * 20 + 1.
    EXPECT_EQ(callsOf([&] { EXPECT_EQ(sample(5), 41.0); }),
              (Lines{
                  R"(IHostApp.isAcquiring() -> false)",
                  R"(IHostChannel.isAsynchronous[c]() -> false)",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getCurrentPosition() -> [2, 500])",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getBlockSize() -> 1000)",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getSampleRate() -> 10000)",
                  R"(IHostChannel.getSampleRate[c]() -> 100)",
                  R"(IHostChannel.getValueAtTime[c](0.2, 7, 0, 0, 4) -> 20)",
                  R"(IHostChannel.scaleValue[c](20) -> 41)",
              }));
    EXPECT_EQ(control.sampleCursor, 20) << "the host's to change, for the next call";
}

TEST_F(StoredSample, IsTheFirstOneWhereverTimeIsNotAboveZero) {
    EXPECT_EQ(sample(26), 0.0);
    EXPECT_EQ(linesOf(callsOf([&] { sample(26); }), "IHostChannel.getValueAtTime"),
              Lines{"IHostChannel.getValueAtTime[c](0, 0, 0, 0, 4) -> 0"});
    host.description.host.currentPosition = {-3, 0};
    EXPECT_EQ(sample(0), 0.0);
}

TEST_F(StoredSample, AllFallTogetherWithTheCursorAtTheVeryStart) {
    host.description.host.currentPosition = {0, 0};
    described.values[4][0] = 5.0;
    for (const std::int32_t back : {0, 1, 10, Largest})
        EXPECT_EQ(sample(back), 5.0) << back;
}

TEST_F(StoredSample, ChannelWithoutARateStandsStill) {
    described.sampleRate = 0.0;
    EXPECT_EQ(linesOf(callsOf([&] { sample(9); }), "IHostChannel.getValueAtTime"),
              Lines{"IHostChannel.getValueAtTime[c](0.25, 0, 0, 0, 4) -> 0"});
}

TEST_F(StoredSample, MasterRateOfZeroIsTheHostsOwnAffair) {
    host.description.host.sampleRate = 0.0;
    EXPECT_EQ(sample(0), 49.0) << "an endless time: the host gives its last sample";
    host.description.host.currentPosition = {0, 0};
    EXPECT_EQ(sample(0), 0.0) << "0 / 0 is not above zero";
}

TEST_F(StoredSample, PositionsAreMultipliedIn64Bits) {
    host.description.host.currentPosition = {Largest, 0};
    host.description.host.blockSize = Largest;
    host.description.host.sampleRate = 4.611686014132420609e18;  // (2^31 - 1)^2, rounded
    described.sampleRate = 1.0;
    EXPECT_EQ(sample(0), 1.0);
}

TEST_F(StoredSample, LatestArrayValueIsThatOfTheCursorTimeWhateverTheClock) {
    described.asynchronous = true;
    described.arraySize = 2;
    described.timestamps = {0.0, 0.1, 0.3};
    EXPECT_EQ(callsOf([&] { key.getLatestArrayValue(*host.channel("c"), 1, 4); }),
              (Lines{
                  R"(IHostApp.isAcquiring() -> false)",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getCurrentPosition() -> [2, 500])",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getBlockSize() -> 1000)",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getSampleRate() -> 10000)",
                  R"(IHostChannel.getValueAtTime[c](0.25, 0, 0, 1, 4) -> 3)",
                  R"(IHostChannel.scaleValue[c](3) -> 3)",
              }));
    EXPECT_EQ(control.sampleCursor, 1);
}

/// Stored data with the cursor at 3 s, and an asynchronous channel of five samples, one a second.
class StampedSample : public ControlTest {
protected:
    StampedSample() {
        host.description.host.acquiring = false;
        host.description.host.currentPosition = {30, 0};
        described.asynchronous = true;
        described.sampleCount = 5;
        described.timestamps = {0.0, 1.0, 2.0, 3.0, 4.0};
        described.values[4] = {0.0, 10.0, 20.0, 30.0, 40.0};
    }

    double sample(std::int32_t back) { return key.getSample(*host.channel("c"), back, 0, 4); }

    HostKit::ChannelDescription& described = channel("c");
};

TEST_F(StampedSample, CountsBackFromTheCursorThatTheLastCallLeft) {
    control.sampleCursor = 4;
    EXPECT_EQ(callsOf([&] { sample(1); }), (Lines{
                                               R"(IHostApp.isAcquiring() -> false)",
                                               R"(IHostChannel.isAsynchronous[c]() -> true)",
                                               R"(IHostChannel.getArraySize[c]() -> 1)",
                                               R"(IHostChannel.getValue[c](3, 4) -> 30)",
                                           }));
    EXPECT_EQ(control.sampleCursor, 4);
}

TEST_F(StampedSample, CursorOfMinusOneIsSearchedFor) {
    control.sampleCursor = -1;
    EXPECT_EQ(callsOf([&] { sample(0); }), (Lines{
                                               R"(IHostApp.isAcquiring() -> false)",
                                               R"(IHostChannel.isAsynchronous[c]() -> true)",
                                               R"(IHostChannel.getSampleCount[c]() -> 5)",
                                               R"(IHostApp.getData() -> "data")",
                                               R"(IHostData.getCurrentPosition() -> [30, 0])",
                                               R"(IHostApp.getData() -> "data")",
                                               R"(IHostData.getBlockSize() -> 1000)",
                                               R"(IHostApp.getData() -> "data")",
                                               R"(IHostData.getSampleRate() -> 10000)",
                                               R"(IHostChannel.getTimestamp[c](4) -> 4)",
                                               R"(IHostChannel.getTimestamp[c](3) -> 3)",
                                               R"(IHostChannel.getTimestamp[c](2) -> 2)",
                                               R"(IHostChannel.getArraySize[c]() -> 1)",
                                               R"(IHostChannel.getValue[c](2, 4) -> 20)",
                                           }));
    EXPECT_EQ(control.sampleCursor, 2);
}

TEST_F(StampedSample, BeforeTheFirstOneIsZeroWithoutAsking) {
    control.sampleCursor = 1;
    EXPECT_EQ(sample(1), 0.0);
    const Lines calls = callsOf([&] { EXPECT_EQ(sample(2), 0.0); });
    EXPECT_EQ(calls.back(), "IHostChannel.isAsynchronous[c]() -> true");
}

TEST_F(StampedSample, CursorOfAnotherNegativeNumberIsNotSearchedFor) {
    control.sampleCursor = -2;  // as a host may leave it
    const Lines calls = callsOf([&] { EXPECT_EQ(sample(0), 0.0); });
    EXPECT_EQ(calls.back(), "IHostChannel.isAsynchronous[c]() -> true");
    EXPECT_EQ(control.sampleCursor, -2);
}

TEST_F(StampedSample, SearchInVainIsTriedAgainByTheNextSample) {
    host.description.host.currentPosition = {0, 0};
    control.sampleCursor = -1;
    EXPECT_EQ(sample(0), 0.0);
    EXPECT_EQ(control.sampleCursor, -1);
    EXPECT_EQ(linesOf(callsOf([&] { sample(0); }), "IHostChannel.getTimestamp").size(), 5U);
}

struct Search {
    const char* what;
    std::int32_t seconds;
    std::int32_t count;
    std::vector<double> stamps;
    std::int32_t expected;
};

const Search Searches[] = {
    {"an empty channel", 3, 0, {}, 0},
    {"a negative count", 3, -5, {}, -1},
    {"the smallest count", 3, Smallest, {}, -1},
    {"a stamp at the cursor is not before it", 1, 3, {0.0, 1.0, 2.0}, 0},
    {"all before the cursor", 9, 3, {0.0, 1.0, 2.0}, 2},
    {"none before the cursor", 0, 3, {0.0, 1.0, 2.0}, -1},
    {"a stamp that is no number ends the walk",
     1,
     3,
     {0.0, std::numeric_limits<double>::quiet_NaN(), 2.0},
     1},
    {"stamps in disorder: the newest that is earlier", 3, 4, {9.0, 2.0, 1.0, 8.0}, 2},
};

TEST_F(StampedSample, LatestOneBeforeTheCursor) {
    for (const Search& search : Searches) {
        host.description.host.currentPosition = {search.seconds * 10, 0};
        described.sampleCount = search.count;
        described.timestamps = search.stamps;
        EXPECT_EQ(key.findLatestSampleBefore(*host.channel("c")), search.expected) << search.what;
    }
}

TEST_F(StampedSample, EmptyChannelIsNotAskedForTheTime) {
    described.sampleCount = 0;
    EXPECT_EQ(callsOf([&] { key.findLatestSampleBefore(*host.channel("c")); }),
              Lines{"IHostChannel.getSampleCount[c]() -> 0"});
}

TEST_F(StampedSample, SearchEndsWithItsAllowance) {
    described.sampleCount = Largest;
    host.description.host.currentPosition = {-1, 0};
    key.stampAllowance.take(ReadAllowance::Places - 100);
    EXPECT_EQ(
        linesOf(callsOf([&] { EXPECT_EQ(key.findLatestSampleBefore(*host.channel("c")), -1); }),
                "IHostChannel.getTimestamp")
            .size(),
        100U);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
