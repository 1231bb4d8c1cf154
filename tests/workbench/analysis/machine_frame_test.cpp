#include "workbench/analysis/machine_frame.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Rotavue::Workbench {
namespace {

MachineFacts probesAt(double xAngle, double yAngle) {
    MachineFacts machine;
    machine.xAngle = xAngle;
    machine.yAngle = yAngle;
    return machine;
}

TEST(MachineFrame, TurnsProbesClockwiseFromTheTop) {
    const double half = std::sqrt(0.5);
    const struct {
        double xAngle, yAngle;
        ProbeValues probes;
        MachinePoint place;
    } cases[] = {
        {90, 0, {3, 4}, {3, 4}},           // plain right and up
        {45, 315, {1, 0}, {half, half}},   // 45 R sees up and right
        {45, 315, {0, 1}, {-half, half}},  // 45 L sees up and left
        {180, 90, {2, 5}, {5, -2}},
    };
    for (const auto& one : cases) {
        const MachineFrame frame(probesAt(one.xAngle, one.yAngle));
        const MachinePoint place = frame.point(one.probes);
        EXPECT_NEAR(place.x, one.place.x, 1e-12);
        EXPECT_NEAR(place.y, one.place.y, 1e-12);
    }
}

TEST(MachineFrame, FindsTheProbeValuesOfAPlace) {
    for (const MachineFacts& machine : {probesAt(90, 0), probesAt(45, 315), probesAt(30, 330)}) {
        const MachineFrame frame(machine);
        ASSERT_TRUE(frame.isPlane());
        const MachinePoint place = frame.point(frame.probesAt({12.0, -70.0}));
        EXPECT_NEAR(place.x, 12.0, 1e-9);
        EXPECT_NEAR(place.y, -70.0, 1e-9);
    }
}

TEST(MachineFrame, IsNoPlaneForProbesThatLookAlongOneLine) {
    EXPECT_FALSE(MachineFrame(probesAt(45, 45)).isPlane());
    EXPECT_FALSE(MachineFrame(probesAt(45, 225)).isPlane());
    EXPECT_FALSE(MachineFrame(probesAt(0, 3)).isPlane());
}

}  // namespace
}  // namespace Rotavue::Workbench
