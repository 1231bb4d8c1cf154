#include "workbench/analysis/shaft_center.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/analysis/mean_position.h"

namespace Rotavue::Workbench {
namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();

ShaftCenterHistory historyOf(const Recording& recording, const ShaftCenterOptions& options = {}) {
    return shaftCenterHistory(recording, ShaftTrack(recording), options);
}

// A shaft that lifts by 10 um a second while it vibrates by 50 um.
Recording liftingShaft() {
    Recording recording = generate({.duration = 4.3,
                                    .firstSpeed = 630,
                                    .lastSpeed = 1230,
                                    .orders = {{1.0, {50, 30}, {50, 120}}},
                                    .xMean = 20});
    for (std::size_t i = 0; i < recording.y.size(); ++i)
        recording.y.edit()[i] += 10.0 * static_cast<double>(i) / recording.sampleRate;
    return recording;
}

TEST(ShaftCenter, IsTheMeanGapWithSpeedAndTime) {
    const ShaftCenterHistory history = historyOf(liftingShaft());
    ASSERT_EQ(history.positions.size(), 4u);  // 0.3 s at the end are less than half an interval
    EXPECT_EQ(history.unit, "um");
    for (std::size_t k = 0; k < 4; ++k) {
        const ShaftCenterPosition& position = history.positions[k];
        const double middle = static_cast<double>(k) + 0.5;
        EXPECT_EQ(position.time, middle);
        EXPECT_NEAR(position.speed, 630 + 600 / 4.3 * middle, 1.0);
        EXPECT_NEAR(position.x, 20.0, 0.3);
        EXPECT_NEAR(position.y, 10.0 * middle, 0.6);  // the whole turns lie not quite in the middle
    }
}

TEST(ShaftCenter, TakesWholeTurnsSoThatVibrationDoesNotShiftIt) {
    // 0.25 s hold 3.75 turns of 15 a second; three whole ones are taken.
    const Recording recording = generate(
        {.firstSpeed = 900, .lastSpeed = 900, .orders = {{1.0, {50, 0}, {50, 90}}}, .xMean = 7});
    for (const auto& position : historyOf(recording, {.interval = 0.25}).positions) {
        EXPECT_NEAR(position.x, 7.0, 0.1);
        EXPECT_NEAR(position.y, 0.0, 0.1);
    }
}

TEST(ShaftCenter, RestsWhereItIsTold) {
    Recording recording = generate({.duration = 2.0, .xMean = 3, .yMean = 4});
    recording.machine.clearanceHeight = 200.0;
    const ShaftCenterPosition centre = historyOf(recording).positions[0];
    EXPECT_NEAR(centre.x, 3.0, 1e-9);
    EXPECT_NEAR(centre.y, 4.0, 1e-9);
    const ShaftCenterPosition bottom =
        historyOf(recording, {.rest = RestPosition::BottomOfClearance}).positions[0];
    EXPECT_NEAR(bottom.x, 3.0, 1e-9);
    EXPECT_NEAR(bottom.y, 4.0 - 100.0, 1e-9);
}

TEST(ShaftCenter, RestsAtTheBottomOfThePictureWhereverTheProbesAre) {
    Recording recording = generate({.duration = 2.0});
    recording.machine.clearanceHeight = 200.0;
    recording.machine.xAngle = 45.0;
    recording.machine.yAngle = 315.0;
    const ShaftCenterPosition rest =
        historyOf(recording, {.rest = RestPosition::BottomOfClearance}).positions[0];
    const MachinePoint place = MachineFrame(recording.machine).point({rest.x, rest.y});
    EXPECT_NEAR(place.x, 0.0, 1e-9);
    EXPECT_NEAR(place.y, -100.0, 1e-9);
}

TEST(ShaftCenter, TakesARestSpanAsDisplacementZero) {
    Recording recording = generate({.duration = 4.0, .xMean = -900, .yMean = -950});
    for (std::size_t i = 20'000; i < 40'000; ++i)
        recording.x.edit()[i] += 12.0;
    const auto positions = historyOf(recording, {.restSpan = TimeSpan{0.0, 1.5}}).positions;
    EXPECT_NEAR(positions[0].x, 0.0, 1e-9);
    EXPECT_NEAR(positions[0].y, 0.0, 1e-9);
    EXPECT_NEAR(positions[3].x, 12.0, 1e-9);
}

TEST(ShaftCenter, WorksForAStandingShaftAndWithoutKeyphasorAtSpeedZero) {
    Recording standing = generate({.duration = 2.0, .xMean = 5});
    std::fill(standing.angle.edit().begin(), standing.angle.edit().end(), 33.0);
    for (const Recording& recording : {standing, withoutKeyphasor(standing)}) {
        const auto positions = historyOf(recording).positions;
        ASSERT_EQ(positions.size(), 2u);
        EXPECT_EQ(positions[0].speed, 0.0);
        EXPECT_NEAR(positions[0].x, 5.0, 1e-9);
    }
}

TEST(ShaftCenter, LeavesIntervalsOfGapsOutAndCountsThem) {
    Recording recording = generate({.duration = 4.0, .xMean = 5});
    for (std::size_t i = 10'000; i < 16'000; ++i)
        recording.x.edit()[i] = Gap;
    const ShaftCenterHistory history = historyOf(recording);
    ASSERT_EQ(history.positions.size(), 3u);
    EXPECT_EQ(history.positions[1].time, 2.5);
    EXPECT_EQ(history.notes,
              std::vector<std::string>{"shaft centre: 1 interval left out because of gaps"});
}

TEST(ShaftCenter, KeepsAShortRecordingAsItsOnlyInterval) {
    const auto positions = historyOf(generate({.duration = 0.2, .xMean = 5})).positions;
    ASSERT_EQ(positions.size(), 1u);
    EXPECT_NEAR(positions[0].time, 0.1, 1e-12);
}

TEST(ShaftCenter, RefusesWhatCannotBeHadInOneLine) {
    const Recording recording = generate({.duration = 1.0});
    Recording coupled = recording;
    coupled.coupling = Coupling::Ac;
    Recording oneWay = recording;
    oneWay.machine.clearanceHeight = 200.0;
    oneWay.machine.xAngle = oneWay.machine.yAngle;
    const auto bottom = RestPosition::BottomOfClearance;
    const struct {
        Recording recording;
        ShaftCenterOptions options;
        std::string line;
    } cases[] = {
        {coupled, {}, "needs the mean of the gaps, which AC coupling takes away"},
        {recording,
         {.rest = bottom},
         "at the bottom of the clearance needs the clearance's "
         "height"},
        {oneWay,
         {.rest = bottom},
         "at the bottom of the clearance needs probes that look along "
         "two directions"},
        {recording,
         {.interval = 0},
         "takes intervals from one sample, 0.0001 s, to 1e9 s, not 0 "
         "s"},
        {recording,
         {.interval = Gap},
         "takes intervals from one sample, 0.0001 s, to 1e9 s, not "
         "nan s"},
        {recording, {.restSpan = TimeSpan{5, 6}}, "finds no samples at rest between 5 and 6 s"},
        {recording, {.span = {5, 6}}, "finds no interval with samples free of gaps"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(refusalOf([&] { historyOf(one.recording, one.options); }),
                  "the shaft centre " + one.line);
    }
}

TEST(ShaftCenter, NotesAShaftThatTurnsInTheStretchOfItsRest) {
    const Recording recording = generate({.firstSpeed = 900, .lastSpeed = 900});
    const auto notes = historyOf(recording, {.restSpan = TimeSpan{0.1, 0.9}}).notes;
    EXPECT_EQ(notes, std::vector<std::string>{"shaft centre: the shaft turns at 900 rpm between "
                                              "0.1 and 0.9 s, which is taken for its rest"});
    const Recording still = generate({.firstSpeed = 0, .lastSpeed = 0});
    EXPECT_TRUE(historyOf(still, {.restSpan = TimeSpan{0.1, 0.9}}).notes.empty());
}

TEST(ShaftCenter, ARestPositionIsCheckedBeforeItIsTaken) {
    Recording recording = generate({});
    const auto bottom = RestPosition::BottomOfClearance;
    EXPECT_NO_THROW(checkRest(recording, RestPosition::Centre, TimeSpan{0.0, 0.5}));
    EXPECT_EQ(refusalOf([&] { checkRest(recording, bottom); }),
              "the shaft centre at the bottom of the clearance needs the clearance's height");
    EXPECT_EQ(refusalOf([&] {
                  checkRest(recording, RestPosition::Centre, TimeSpan{5, 6});
              }),
              "the shaft centre finds no samples at rest between 5 and 6 s");
    recording.coupling = Coupling::Ac;
    EXPECT_EQ(refusalOf([&] { checkRest(recording, RestPosition::Centre); }),
              "the shaft centre needs the mean of the gaps, which AC coupling takes away");
}

TEST(MeanPosition, NeedsHalfOfTheSamplesInPairs) {
    Recording recording;
    recording.sampleRate = 1.0;
    recording.x = {1, 2, Gap, 6};
    recording.y = {5, Gap, 5, 7};
    const auto mean = meanPosition(recording, {});
    ASSERT_TRUE(mean);
    EXPECT_EQ(mean->x, 3.5);
    EXPECT_EQ(mean->y, 6.0);
    EXPECT_FALSE(meanPosition(recording, {0.5, 3.0}));
    EXPECT_FALSE(meanPosition(recording, {9.0, 10.0}));
}

TEST(SampleRange, TakesASampleOnTheFirstBoundAndLeavesOneOnTheLast) {
    Recording recording;
    recording.sampleRate = 10.0;
    recording.x.edit().assign(100, 0.0);
    EXPECT_EQ(samplesIn(recording, {0.3, 0.7}).first, 3u);
    EXPECT_EQ(samplesIn(recording, {0.3, 0.7}).end, 7u);
    EXPECT_EQ(samplesIn(recording, {-1.0, 99.0}).count(), 100u);
    EXPECT_EQ(samplesIn(recording, {Gap, Gap}).count(), 0u);
    EXPECT_EQ(samplesIn(recording, {0.7, 0.3}).count(), 0u);
}

}  // namespace
}  // namespace Rotavue::Workbench
