#include "workbench/analysis/turn_marks.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

using Times = std::vector<double>;

void expectTimes(const Times& found, const Times& expected) {
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i], expected[i], 1e-12);
}

// The marks of one run as "time turn" pairs.
void expectRun(const std::vector<TurnMark>& run, const Times& times,
               const std::vector<std::int64_t>& turns) {
    ASSERT_EQ(run.size(), times.size());
    for (std::size_t i = 0; i < run.size(); ++i) {
        EXPECT_EQ(run[i].time, times[i]);
        EXPECT_EQ(run[i].turn, turns[i]);
    }
}

TEST(TurnTimes, LieBetweenSamplesWhereTheStraightLineReachesTheTurn) {
    // From 350 to 30 degrees it is 40; 10 of them lead to the turn: a quarter of a sample.
    const Times angle = {310, 350, 30, 70};
    expectTimes(findTurnTimes(angle, 1.0).times, {1.25});
    expectTimes(findTurnTimes(angle, 100.0).times, {0.0125});
}

TEST(TurnTimes, BeginWithAFirstSampleThatStandsAtZero) {
    EXPECT_EQ(findTurnTimes(Times({0, 90, 180, 270, 0}), 1.0).times, Times({0, 4}));
}

TEST(TurnTimes, CountAJitteringPassageOnce) {
    // 350, 360, 355, 365, 358, 375: the turn is first reached at sample 1.
    EXPECT_EQ(findTurnTimes(Times({350, 0, 355, 5, 358, 15}), 1.0).times, Times({1}));
}

TEST(TurnTimes, CountATurnBackAndForthOnce) {
    const Times angle = {300, 20, 100, 20, 300, 200, 300, 20, 140, 260, 20};
    // Reached at 0.75; back to 200 and forth again; the next turn comes at 20 degrees in sample 10:
    // from 260 it is 120 degrees, 100 of them to the turn.
    expectTimes(findTurnTimes(angle, 1.0).times, {0.75, 9.0 + 100.0 / 120.0});
}

TEST(TurnTimes, AreNoneForAShaftThatStandsOrTurnsBackward) {
    EXPECT_EQ(findTurnTimes(Times({12, 12, 12, 12}), 1.0).times, Times());
    EXPECT_EQ(findTurnTimes(Times({50, 300, 200, 100, 0, 300}), 1.0).times, Times());
    EXPECT_EQ(findTurnTimes(Times(), 1.0).times, Times());
}

TEST(TurnTimes, TellHowFarTheShaftHasTurnedInAll) {
    // From 90 degrees by 1 turn and 180 degrees, and back by 270.
    EXPECT_EQ(findTurnTimes(Times({90, 210, 330, 90, 210, 270, 180, 90, 0}), 1.0).netTurns, 0.75);
    EXPECT_EQ(findTurnTimes(Times({180, 90, 0, 270, 180, 90}), 1.0).netTurns, -1.25);
    EXPECT_EQ(findTurnTimes(Times({12}), 1.0).netTurns, 0.0);
}

TEST(MendMarks, LeavesEvenAndAcceleratingMarksAlone) {
    for (const Times& times : {Times{1, 2, 3, 4}, Times{0, 1, 1.9, 2.7, 3.4, 4, 4.5}}) {
        const MendedMarks marks = mendMarks(times);
        ASSERT_EQ(marks.runs.size(), 1u);
        EXPECT_EQ(marks.runs[0].size(), times.size());
        EXPECT_EQ(marks.runs[0].back().turn, static_cast<std::int64_t>(times.size()) - 1);
        EXPECT_EQ(marks.droppedPulses + marks.bridgedPulses, 0u);
    }
}

TEST(MendMarks, CountsOnOverMissingPulses) {
    // 3 is missing, then 6 and 7.
    const MendedMarks marks = mendMarks({0, 1, 2, 4, 5, 8, 9, 10});
    ASSERT_EQ(marks.runs.size(), 1u);
    expectRun(marks.runs[0], {0, 1, 2, 4, 5, 8, 9, 10}, {0, 1, 2, 4, 5, 8, 9, 10});
    EXPECT_EQ(marks.bridgedPulses, 3u);
}

TEST(MendMarks, DropsAFalsePulseWhereverInTheTurnItComes) {
    for (const double false1 : {2.03, 2.4, 2.5, 2.6, 2.97}) {
        const MendedMarks marks = mendMarks({0, 1, 2, false1, 3, 4, 5});
        ASSERT_EQ(marks.runs.size(), 1u) << false1;
        expectRun(marks.runs[0], {0, 1, 2, 3, 4, 5}, {0, 1, 2, 3, 4, 5});
        EXPECT_EQ(marks.droppedPulses, 1u);
    }
}

TEST(MendMarks, DropsTheEchoOfEveryPulse) {
    const MendedMarks marks = mendMarks({0, 0.02, 1, 1.02, 2, 2.02, 3, 3.02, 4});
    ASSERT_EQ(marks.runs.size(), 1u);
    expectRun(marks.runs[0], {0, 1, 2, 3, 4}, {0, 1, 2, 3, 4});
    EXPECT_EQ(marks.droppedPulses, 4u);
}

TEST(MendMarks, BeginsAnotherRunBehindAStandstill) {
    const MendedMarks marks = mendMarks({0, 1, 2, 3, 23.5, 24.5, 25.5});
    ASSERT_EQ(marks.runs.size(), 2u);
    expectRun(marks.runs[0], {0, 1, 2, 3}, {0, 1, 2, 3});
    expectRun(marks.runs[1], {23.5, 24.5, 25.5}, {0, 1, 2});
}

TEST(MendMarks, TakesNoNumberOfTurnsThatTheNeighboursDoNotExplain) {
    // 2.4 times the usual interval is neither two nor three turns.
    EXPECT_EQ(mendMarks({0, 1, 2, 4.4, 5.4, 6.4}).runs.size(), 2u);
    // Eight turns are bridged, nine are not.
    EXPECT_EQ(mendMarks({0, 1, 2, 10, 11, 12}).runs.size(), 1u);
    EXPECT_EQ(mendMarks({0, 1, 2, 11, 12, 13}).runs.size(), 2u);
}

TEST(MendMarks, DoesNotTakeTheLastTurnBeforeAStandstillForTwo) {
    const MendedMarks marks = mendMarks({0, 1, 2, 3, 5});
    ASSERT_EQ(marks.runs.size(), 1u);
    expectRun(marks.runs[0], {0, 1, 2, 3}, {0, 1, 2, 3});
}

TEST(MendMarks, JudgesNothingByFewerThanThreeNeighbours) {
    const MendedMarks marks = mendMarks({0, 1, 3, 3.1});
    ASSERT_EQ(marks.runs.size(), 1u);
    expectRun(marks.runs[0], {0, 1, 3, 3.1}, {0, 1, 2, 3});
}

TEST(MendMarks, NeedsTwoMarksForARun) {
    EXPECT_TRUE(mendMarks({}).runs.empty());
    EXPECT_TRUE(mendMarks({3.0}).runs.empty());
    EXPECT_EQ(mendMarks({3.0, 4.0}).runs.size(), 1u);
}

}  // namespace
}  // namespace Rotavue::Workbench
