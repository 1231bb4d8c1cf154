#include "tests/plugin/orbit_control/control_test.h"

#include <algorithm>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::int32_t Smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

class SampleCountForTime : public ControlTest {};

TEST_F(SampleCountForTime, IsTheMasterRateTimesTheSpan) {
    key.displayTime = 100.0;
    EXPECT_EQ(key.sampleCountForTime(false), 1000) << "10000 Hz * 0.1 s";
    key.displayTime = 0.19;
    EXPECT_EQ(key.sampleCountForTime(false), 1) << "1.9, truncated";
    key.displayTime = -0.19;
    EXPECT_EQ(key.sampleCountForTime(false), -1);
    host.description.host.sampleRate = 25.0;
    EXPECT_EQ(key.sampleCountForTime(true), 2) << "2.5: a tenth of a second, whatever is set";
}

TEST_F(SampleCountForTime, IsTheSmallestNumberBeyond32Bits) {
    for (const double time : {1e300, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
        key.displayTime = time;
        EXPECT_EQ(key.sampleCountForTime(false), Smallest) << time;
    }
}

class TimeWindow : public ControlTest {
protected:
    TimeWindow() { key.graph.setHistoryType(1); }

    HistoryWindow windowWithTachoOf(std::int32_t count) {
        channel("tacho").sampleCount = count;
        return key.findHistoryWindow(host.channel("tacho").get());
    }
};

TEST_F(TimeWindow, IsBoundedByTheTachosCountLessOne) {
    EXPECT_EQ(windowWithTachoOf(2000), (HistoryWindow{0, 1000}));
    EXPECT_EQ(windowWithTachoOf(1001), (HistoryWindow{0, 1000}));
    EXPECT_EQ(windowWithTachoOf(1000), (HistoryWindow{0, 999}));
    EXPECT_EQ(windowWithTachoOf(1), (HistoryWindow{0, 0}));
    EXPECT_EQ(windowWithTachoOf(0), (HistoryWindow{0, 0}));
    EXPECT_EQ(windowWithTachoOf(Smallest), (HistoryWindow{0, 0}));
}

TEST_F(TimeWindow, WithoutATachoIsNotBounded) {
    EXPECT_EQ(key.findHistoryWindow(nullptr), (HistoryWindow{0, 1000}));
    key.displayTime = 100'000'000.0;
    EXPECT_EQ(key.findHistoryWindow(nullptr), (HistoryWindow{0, 1'000'000'000}));
}

TEST_F(TimeWindow, IsEmptyForATimeThatIsNoneOrTooLong) {
    for (const double time : {0.0, -5.0, 1e300}) {
        key.displayTime = time;
        EXPECT_EQ(key.findHistoryWindow(nullptr), (HistoryWindow{0, 0})) << time;
    }
}

TEST_F(TimeWindow, AsksForTheMasterRateFirst) {
    channel("tacho").sampleCount = 5;
    EXPECT_EQ(callsOf([&] { key.findHistoryWindow(host.channel("tacho").get()); }),
              (Lines{
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getSampleRate() -> 10000)",
                  R"(IHostChannel.getSampleCount[tacho]() -> 5)",
              }));
}

/// A tacho whose samples are written newest first.
class RevolutionWindow : public ControlTest {
protected:
    HistoryWindow windowOf(std::vector<double> newestFirst) {
        std::ranges::reverse(newestFirst);
        describeTacho("tacho", std::move(newestFirst));
        return key.findHistoryWindow(host.channel("tacho").get());
    }

    // Three turns of four samples. Marks stand at 4 and 8, where 45 falls back to 315.
    const std::vector<double> threeTurns{315, 225, 135, 45, 315, 225, 135, 45, 315, 225, 135, 45};
};

TEST_F(RevolutionWindow, RunsFromTheNewestMarkToTheMarkBeforeIt) {
    EXPECT_EQ(windowOf(threeTurns), (HistoryWindow{4, 9})) << "both marks belong to it";
}

TEST_F(RevolutionWindow, LeavesOutTheTurnThatIsNotComplete) {
    const std::vector<double> begun(threeTurns.begin() + 2, threeTurns.end());
    EXPECT_EQ(windowOf(begun), (HistoryWindow{2, 7}));
}

TEST_F(RevolutionWindow, IsShorterWhenTheBufferEndsEarly) {
    key.revolutions = 2;
    EXPECT_EQ(windowOf(threeTurns), (HistoryWindow{4, 12}));
    key.revolutions = 25;
    EXPECT_EQ(windowOf(threeTurns), (HistoryWindow{4, 12}));
}

TEST_F(RevolutionWindow, CountsTurns) {
    std::vector<double> sixTurns = threeTurns;
    sixTurns.insert(sixTurns.end(), threeTurns.begin(), threeTurns.end());
    key.revolutions = 3;
    EXPECT_EQ(windowOf(sixTurns), (HistoryWindow{4, 17})) << "4 + 3 * 4 + 1";
}

TEST_F(RevolutionWindow, IsOneSampleLongForNoRevolutions) {
    key.revolutions = 0;
    EXPECT_EQ(windowOf(threeTurns), (HistoryWindow{4, 5}));
}

TEST_F(RevolutionWindow, NegativeRevolutionsNeverRunOut) {
    for (const std::int32_t revolutions : {-1, Smallest}) {
        key.revolutions = revolutions;
        EXPECT_EQ(windowOf(threeTurns), (HistoryWindow{4, 12}));
    }
}

TEST_F(RevolutionWindow, WithoutAMarkTakesAllSamples) {
    EXPECT_EQ(windowOf({50, 40, 30, 20, 10}), (HistoryWindow{0, 5}));
    EXPECT_EQ(windowOf({50, 40}), (HistoryWindow{0, 2}));
}

TEST_F(RevolutionWindow, TheOldestSampleIsNotSearched) {
    EXPECT_EQ(windowOf({20, 10, 350}), (HistoryWindow{0, 3})) << "the mark at 2 is not seen";
    EXPECT_EQ(windowOf({20, 10, 350, 340}), (HistoryWindow{2, 4}));
}

TEST_F(RevolutionWindow, ExactlyHalfATurnIsNoMark) {
    EXPECT_EQ(windowOf({10, 190, 10, 190}), (HistoryWindow{0, 4}));
    EXPECT_EQ(windowOf({10, 190.5, 180, 170}), (HistoryWindow{1, 4}));
    EXPECT_EQ(windowOf({190.5, 10, 20, 30}), (HistoryWindow{1, 4})) << "in either direction";
}

TEST_F(RevolutionWindow, SilentTachoGivesNothing) {
    EXPECT_EQ(windowOf({0, 0, 0, 0, 0}), (HistoryWindow{0, 0}));
    EXPECT_EQ(windowOf({30, 20, 10, 0, 0, 350, 340}), (HistoryWindow{0, 0}));
    EXPECT_EQ(windowOf({20, 0, 10, 0}), (HistoryWindow{0, 4})) << "one zero at a time is an angle";
}

TEST_F(RevolutionWindow, EndsWhereTheTachoFallsSilent) {
    EXPECT_EQ(windowOf({10, 350, 170, 0, 0, 0, 0}), (HistoryWindow{1, 5}));
}

TEST_F(RevolutionWindow, FirstSampleOfExactlyZeroIsTakenForSilence) {
    // It is compared with itself before any other.
    EXPECT_EQ(windowOf({350, 0, 10, 20, 30}), (HistoryWindow{1, 2}));
    EXPECT_EQ(windowOf({0, 10, 20, 30}), (HistoryWindow{0, 1}));
}

TEST_F(RevolutionWindow, TinyTachosGiveOneSample) {
    EXPECT_EQ(windowOf({10}), (HistoryWindow{0, 1}));
    EXPECT_EQ(windowOf({}), (HistoryWindow{0, 1})) << "a count of 0 is not looked at before";
}

TEST_F(RevolutionWindow, NeedsATachoWithARate) {
    EXPECT_EQ(callsOf([&] { EXPECT_EQ(key.findHistoryWindow(nullptr), HistoryWindow{}); }),
              Lines{});
    describeTacho("tacho", threeTurns).sampleRate = 0.0;
    const auto tacho = host.channel("tacho");
    EXPECT_EQ(callsOf([&] { EXPECT_EQ(key.findHistoryWindow(tacho.get()), HistoryWindow{}); }),
              Lines{"IHostChannel.getSampleRate[tacho]() -> 0"});
}

TEST_F(RevolutionWindow, AnyHistoryTypeButTimeMeansRevolutions) {
    for (const std::int32_t type : {0, 2, -1}) {
        key.graph.setHistoryType(type);
        EXPECT_EQ(windowOf(threeTurns), (HistoryWindow{4, 9})) << type;
    }
}

TEST_F(RevolutionWindow, ReadsTheSamplesOneByOne) {
    describeTacho("tacho", {30, 20, 10});
    const Lines calls = callsOf([&] { key.findHistoryWindow(host.channel("tacho").get()); });
    EXPECT_EQ(calls[0], "IHostChannel.getSampleRate[tacho]() -> 1000");
    EXPECT_EQ(calls[1], "IHostChannel.getSampleCount[tacho]() -> 3");
    EXPECT_EQ(linesOf(calls, "IHostChannel.getValue"),
              (Lines{
                  // the search: 0, then 1
                  "IHostChannel.getValue[tacho](2, 0) -> 10",
                  "IHostChannel.getValue[tacho](1, 0) -> 20",
                  // the count: 0, then 0 and 1
                  "IHostChannel.getValue[tacho](2, 0) -> 10",
                  "IHostChannel.getValue[tacho](2, 0) -> 10",
                  "IHostChannel.getValue[tacho](1, 0) -> 20",
              }));
}

TEST_F(RevolutionWindow, HostileCountEndsWithTheAllowance) {
    // On stored data every sample of this channel reads as 90: no mark, no silence.
    host.description.host.acquiring = false;
    HostKit::ChannelDescription& tacho = describeTacho("tacho", {});
    tacho.sampleCount = Largest;
    tacho.scale = {0.0, 90.0};
    key.turnAllowance.take(ReadAllowance::Places - 100);
    EXPECT_EQ(key.findHistoryWindow(host.channel("tacho").get()), (HistoryWindow{0, 1}))
        << "the search has taken all 100";
    key.turnAllowance.renew();
    key.turnAllowance.take(ReadAllowance::Places - 100);
    key.revolutions = Largest;
    tacho.sampleCount = 60;
    EXPECT_EQ(key.findHistoryWindow(host.channel("tacho").get()), (HistoryWindow{0, 43}))
        << "58 for the search, 42 for the count";
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
