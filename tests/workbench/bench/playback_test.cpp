#include "workbench/bench/playback.h"

#include "tests/workbench/bench/bench_fixture.h"

#include <QSignalSpy>

namespace Rotavue::Workbench {
namespace {

class PlaybackTest : public BenchTest {
protected:
    Playback& playback() { return bench_.playback(); }
};

TEST_F(PlaybackTest, AnEmptyBenchDoesNotPlay) {
    playback().play();
    EXPECT_FALSE(playback().isPlaying());
}

TEST_F(PlaybackTest, PlayingIsARunningMeasurementAndPauseIsStoredData) {
    const Plane& plane = add();
    bench_.setCursor(0.5);
    playback().play();
    EXPECT_EQ(plane.state(), HostState::Acquiring);
    playback().pause();
    EXPECT_EQ(plane.state(), HostState::Stored);
    EXPECT_DOUBLE_EQ(bench_.cursor(), 0.5);
}

TEST_F(PlaybackTest, StartsOverFromTheEnd) {
    add();
    playback().play();
    EXPECT_EQ(bench_.cursor(), 0.0);
}

TEST_F(PlaybackTest, TheSpeedStretchesTime) {
    add();
    bench_.setCursor(0.1);
    playback().setSpeed(0.5);
    playback().advance(0.2);
    EXPECT_DOUBLE_EQ(bench_.cursor(), 0.2);
}

TEST_F(PlaybackTest, TheSpeedIsHeldBetweenItsLimits) {
    playback().setSpeed(1e9);
    EXPECT_EQ(playback().speed(), 100.0);
    playback().setSpeed(0.0);
    EXPECT_EQ(playback().speed(), 0.001);
}

/// 0.9 s and 0.2 s make 1.1 s, and the recording is 0.9999 s long.
TEST_F(PlaybackTest, TheEndIsFollowedByTheBeginning) {
    add();
    bench_.setCursor(0.9);
    playback().advance(0.2);
    EXPECT_NEAR(bench_.cursor(), 0.1001, 1e-9);
}

TEST_F(PlaybackTest, WithoutLoopsItStopsAtTheEnd) {
    add();
    bench_.setCursor(0.5);
    playback().setLoops(false);
    playback().play();
    playback().advance(0.6);
    EXPECT_FALSE(playback().isPlaying());
    EXPECT_DOUBLE_EQ(bench_.cursor(), 0.9999);
}

TEST_F(PlaybackTest, ItMovesByItself) {
    add();
    bench_.setCursor(0.0);
    playback().play();
    EXPECT_TRUE(QSignalSpy(&bench_, &Bench::cursorMoved).wait());
    EXPECT_GT(bench_.cursor(), 0.0);
}

TEST_F(PlaybackTest, StopsWhenTheLastPlaneGoes) {
    Plane& plane = add();
    playback().play();
    bench_.removePlane(plane);
    EXPECT_FALSE(playback().isPlaying());
}

}  // namespace
}  // namespace Rotavue::Workbench
