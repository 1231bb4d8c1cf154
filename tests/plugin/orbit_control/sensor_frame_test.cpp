#include "plugin/orbit_control/sensor_frame.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr double RootOfHalf = 0.7071067811865476;

struct Turn {
    const char* machine;
    double xAngle;
    double yAngle;
    Point expected;  ///< of the sensor values 3 (X) and 4 (Y)
};

// The angle runs clockwise from the top: a sensor at 0 shows upward, one at 90 to the right.
const Turn Turns[] = {
    {"X right, Y up", 90.0, 0.0, {3.0, 4.0}},
    {"X up, Y right", 0.0, 90.0, {4.0, 3.0}},
    {"X down, Y left", 180.0, 270.0, {-4.0, -3.0}},
    {"X 45 right, Y 45 left", 45.0, 315.0, {-1.0 * RootOfHalf, 7.0 * RootOfHalf}},
    {"both up", 0.0, 0.0, {0.0, 7.0}},
};

TEST(SensorFrame, TurnsSensorValuesIntoTheMachinesFrame) {
    for (const Turn& turn : Turns) {
        const Point point = SensorFrame(turn.xAngle, turn.yAngle).turned(3.0, 4.0);
        EXPECT_NEAR(point.x, turn.expected.x, 1e-14) << turn.machine;
        EXPECT_NEAR(point.y, turn.expected.y, 1e-14) << turn.machine;
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
