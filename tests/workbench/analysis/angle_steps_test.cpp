#include "workbench/analysis/angle_steps.h"

#include <gtest/gtest.h>

#include <limits>

namespace Rotavue::Workbench {
namespace {

using Complex = std::complex<double>;

Recording recordingOf(const std::vector<double>& x, const std::vector<double>& y) {
    Recording recording;
    recording.sampleRate = 1.0;
    recording.x = x;
    recording.y = y;
    return recording;
}

TEST(AngleSteps, AreMeansOfTheStraightLinesBetweenSamples) {
    // x rises by 4 a quarter turn; the steps of half a turn have their middles at 5.25 and 5.75.
    const Recording recording = recordingOf({0, 4, 8, 12, 16}, {1, 1, 1, 1, 1});
    const AngleSteps steps = averageBySteps(recording, {0, {5.0, 5.25, 5.5, 5.75, 6.0}}, 2);
    EXPECT_EQ(steps.firstTurn, 5.0);
    EXPECT_EQ(steps.placeOf(5.25), 0.0);
    EXPECT_EQ(steps.placeOf(5.75), 1.0);
    EXPECT_EQ(steps.values, (std::vector<Complex>{{4.0, 1.0}, {12.0, 1.0}}));
}

TEST(AngleSteps, CutSamplesWhereTheStepsDo) {
    // Steps of a quarter turn from 5.1 on; the samples lie at 5.1, 5.3 and 5.75. From 5.1 to 5.3 x
    // rises from 0 to 2, then falls to 0 at 5.75: two whole steps.
    // First: 0.2 turns with the mean 1, then 0.05 turns from 2 to 2 - 2/9: (0.2 + 0.05 * 17/9) * 4.
    const AngleSteps steps =
        averageBySteps(recordingOf({0, 2, 0}, {0, 0, 0}), {0, {5.1, 5.3, 5.75}}, 4);
    ASSERT_EQ(steps.values.size(), 2u);
    EXPECT_NEAR(steps.values[0].real(), 0.8 + 0.2 * 17.0 / 9.0, 1e-12);
    // Second: from 2 - 2/9 at 5.35 to 2 - 12/9 at 5.6; the mean is 2 - 7/9.
    EXPECT_NEAR(steps.values[1].real(), 11.0 / 9.0, 1e-12);
}

TEST(AngleSteps, BridgeGapsByStraightLines) {
    const double gap = std::numeric_limits<double>::quiet_NaN();
    const Recording recording = recordingOf({0, gap, 8, 12, 16}, {1, 1, 1, gap, 1});
    const AngleSteps steps = averageBySteps(recording, {0, {5.0, 5.25, 5.5, 5.75, 6.0}}, 2);
    EXPECT_EQ(steps.values, (std::vector<Complex>{{4.0, 1.0}, {12.0, 1.0}}));
}

TEST(AngleSteps, TakeSamplesFromTheMiddleOfARecording) {
    const Recording recording = recordingOf({99, 99, 2, 2, 2, 99}, {0, 0, 3, 3, 3, 0});
    const AngleSteps steps = averageBySteps(recording, {2, {0.0, 0.25, 0.5}}, 4);
    EXPECT_EQ(steps.values, (std::vector<Complex>{{2.0, 3.0}, {2.0, 3.0}}));
}

TEST(AngleSteps, AreNoneWhereAllIsGap) {
    const double gap = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(averageBySteps(recordingOf({gap, 1}, {1, gap}), {0, {0, 1}}, 8).values.empty());
    EXPECT_TRUE(averageBySteps(recordingOf({1, 1}, {1, 1}), {0, {0, 0.1}}, 8).values.empty());
}

}  // namespace
}  // namespace Rotavue::Workbench
