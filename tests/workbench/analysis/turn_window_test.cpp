#include "workbench/analysis/turn_window.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

// Four samples a turn, the first of them at 0: 0 90 180 270 | 0 90 ..
std::vector<double> turns(int samples) {
    std::vector<double> angle;
    for (int i = 0; i < samples; ++i)
        angle.push_back(90.0 * (i % 4));
    return angle;
}

TEST(TurnWindow, RunsFromTheNewestMarkBackOverTheTurns) {
    // Samples 0 to 9; the angle falls back behind samples 3 and 7. Newest mark: 7; one turn: 3.
    const TurnWindow window = turnWindow(turns(10), 4.0, 9, 1);
    EXPECT_EQ(window.last, 7U);
    EXPECT_EQ(window.first, 3U);
    EXPECT_EQ(window.turns, 1);
}

TEST(TurnWindow, IsShorterWhereTheRecordingBegins) {
    const TurnWindow window = turnWindow(turns(10), 4.0, 9, 5);
    EXPECT_EQ(window.first, 0U);
    EXPECT_EQ(window.turns, 1);
}

TEST(TurnWindow, LooksAtNothingBehindThePosition) {
    // Position 5: the only mark before it is behind sample 3.
    const TurnWindow window = turnWindow(turns(100), 4.0, 5, 1);
    EXPECT_EQ(window.last, 3U);
    EXPECT_EQ(window.first, 0U);
    EXPECT_EQ(window.turns, 0);
}

TEST(TurnWindow, WithoutAMarkIsAllThereIs) {
    const TurnWindow window = turnWindow(std::vector<double>{10, 20, 30}, 4.0, 2, 1);
    EXPECT_EQ(window.first, 0U);
    EXPECT_EQ(window.last, 2U);
    EXPECT_EQ(window.turns, 0);
}

TEST(TurnWindow, ForNoTurnsIsOneSample) {
    const TurnWindow window = turnWindow(turns(10), 4.0, 9, 0);
    EXPECT_EQ(window.first, window.last);
}

TEST(TurnWindow, TellsTheSpeedInIt) {
    // Four samples a turn at 200 a second are 50 turns a second, 3000 rpm.
    EXPECT_NEAR(turnWindow(turns(100), 200.0, 99, 8).speed, 3000.0, 1e-9);
    EXPECT_NEAR(meanSpeed(turns(100), 200.0, 0, 99), 3000.0, 1e-9);
}

TEST(TurnWindow, OneSampleHasNoSpeed) {
    EXPECT_EQ(turnWindow(std::vector<double>{5.0}, 200.0, 0, 3).speed, 0.0);
    EXPECT_EQ(meanSpeed(turns(3), 200.0, 2, 2), 0.0);
}

TEST(TurnWindow, AShaftThatStandsHasNoTurns) {
    const TurnWindow window = turnWindow(std::vector<double>(50, 0.0), 4.0, 49, 3);
    EXPECT_EQ(window.turns, 0);
    EXPECT_EQ(window.speed, 0.0);
}

}  // namespace
}  // namespace Rotavue::Workbench
