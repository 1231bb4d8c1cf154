#include "workbench/bench/turn_step.h"

#include "tests/workbench/bench/bench_fixture.h"

namespace Rotavue::Workbench {
namespace {

using TurnStepTest = BenchTest;

/// Turn 10 begins at 9.75 / 50 = 0.195 s, which is sample 1950; turn 11 at 0.215 s.
TEST_F(TurnStepTest, StepsFromMarkToMark) {
    const Plane& plane = add();
    EXPECT_NEAR(steppedTime(plane, 0.2, 1), 0.215, 1.1e-4);
    EXPECT_NEAR(steppedTime(plane, 0.2, -1), 0.195, 1.1e-4);
    EXPECT_NEAR(steppedTime(plane, 0.2, 5), 0.295, 1.1e-4);
}

TEST_F(TurnStepTest, ThereAndBackIsWhereItBegan) {
    const Plane& plane = add();
    const double mark = steppedTime(plane, 0.2, 1);
    const double next = steppedTime(plane, mark, 1);
    EXPECT_NEAR(next - mark, 0.02, 1e-9);
    EXPECT_DOUBLE_EQ(steppedTime(plane, next, -1), mark);
}

TEST_F(TurnStepTest, TheSampleBehindAMarkShowsWholeTurnsUpToThere) {
    Plane& plane = add();
    plane.showMoment(steppedTime(plane, 0.2, 1), HostState::Stored);
    const auto& angle = plane.shown().recording.angle;
    EXPECT_LT(angle[plane.position()], angle[plane.position() - 1]);
}

TEST_F(TurnStepTest, StopsAtTheFirstMark) {
    const Plane& plane = add();
    EXPECT_NEAR(steppedTime(plane, 0.02, -7), 0.015, 1.1e-4);
}

TEST_F(TurnStepTest, WithoutAKeyphasorAStepIsWhatIsShown) {
    const Plane& plane = add(withoutKeyphasor(rotor()));
    EXPECT_NEAR(steppedTime(plane, 0.2, 1), 0.3, 1e-9);
    EXPECT_NEAR(steppedTime(plane, 0.2, -1), 0.1, 1e-9);
}

}  // namespace
}  // namespace Rotavue::Workbench
