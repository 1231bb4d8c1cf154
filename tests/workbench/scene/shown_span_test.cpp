#include "workbench/scene/shown_span.h"

#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/analysis/mean_position.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {

namespace {

/// 50 turns a second for a second, a quarter turn before the first sample: turn n begins at
/// (n - 0.25) / 50 s, the first of them at 0.015 s and the last at 0.995 s.
class ShownSpanTest : public testing::Test {
protected:
    TimeSpan stretch(ShownSpan span) const { return stretchOf(span, track_); }

    Recording recording_ = generate({});
    ShaftTrack track_{recording_};
};

TEST_F(ShownSpanTest, TurnsEndWithTheNewestPassingOfTheKeyphasor) {
    struct Case {
        int turns;
        double time, from, to;
    };
    const Case cases[] = {
        {8, 0.9999, 0.835, 0.995},
        {1, 0.9999, 0.975, 0.995},
        {8, 0.5, 0.335, 0.495},      // turn 25 is the newest at 0.5 s, which is turn 25.25
        {60, 0.9999, 0.015, 0.995},  // as many as there are
    };
    for (const Case& c : cases) {
        const TimeSpan found = stretch({.byTurns = true, .turns = c.turns, .time = c.time});
        EXPECT_NEAR(found.from, c.from, 1e-6) << c.turns;
        EXPECT_NEAR(found.to, c.to, 1e-6) << c.turns;
    }
}

TEST_F(ShownSpanTest, RoundingLosesNoTurn) {
    for (int turns = 1; turns <= 25; ++turns) {
        const ShownSpan span{.byTurns = true, .turns = turns, .time = 0.9};
        EXPECT_EQ(track_.mostTurns(stretch(span)).count(), turns);
    }
}

TEST_F(ShownSpanTest, WithoutAWholeTurnItBeginsWithTheRecording) {
    const TimeSpan found = stretch({.byTurns = true, .turns = 8, .time = 0.02});
    EXPECT_EQ(found.from, 0.0);
    EXPECT_EQ(found.to, 0.02);
    EXPECT_EQ(track_.mostTurns(found).count(), 0);
}

// Ten samples a second; the newest is number 5, and 300 ms before it are numbers 3 and 4.
TEST_F(ShownSpanTest, TheNewestSampleIsOneOfThoseOfATime) {
    Recording recording;
    recording.sampleRate = 10.0;
    recording.x = {1, 2, 4, 8, 16, 32, 64, 128};
    recording.y = recording.x;
    ShownSpan span{.milliseconds = 300.0, .time = 0.5, .sample = 0.1};
    EXPECT_DOUBLE_EQ(meanPosition(recording, stretch(span))->x, (8.0 + 16.0 + 32.0) / 3.0);
    span.milliseconds = 399.0;  // as a control counts, the last sample is whole or left out
    EXPECT_DOUBLE_EQ(meanPosition(recording, stretch(span))->x, (8.0 + 16.0 + 32.0) / 3.0);
    span.time = 0.7;
    span.milliseconds = 100.0;
    EXPECT_EQ(meanPosition(recording, stretch(span))->x, 128.0);  // the last of all
    span.milliseconds = 10'000.0;
    EXPECT_DOUBLE_EQ(meanPosition(recording, stretch(span))->x, 255.0 / 8.0);
}

TEST_F(ShownSpanTest, TimeEndsAtTheNewestSample) {
    const TimeSpan found = stretch({.milliseconds = 100.0, .time = 0.5});
    EXPECT_DOUBLE_EQ(found.from, 0.4);
    EXPECT_EQ(found.to, 0.5);
    EXPECT_EQ(stretch({.milliseconds = 100.0, .time = 0.05}).from, 0.0);
}

}  // namespace

}  // namespace Rotavue::Workbench
