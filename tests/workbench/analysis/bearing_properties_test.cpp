#include "workbench/analysis/bearing_properties.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

using Properties = std::map<std::wstring, std::wstring>;

TEST(BearingProperties, TellAllThatIsKnown) {
    MachineFacts machine;
    machine.xAngle = 45.0;
    machine.yAngle = 315.0;
    machine.tachoAngle = 12.5;
    machine.rotation = Rotation::CounterClockwise;
    machine.clearanceWidth = 200.0;
    machine.clearanceHeight = 180.25;
    const Properties expected = {
        {L"Orbit X Angle", L"45"},          {L"Orbit Y Angle", L"315"},
        {L"Orbit Tacho Angle", L"12.5"},    {L"Orbit Rotation Direction", L"CCW"},
        {L"Orbit Clearance Width", L"200"}, {L"Orbit Clearance Height", L"180.25"},
    };
    EXPECT_EQ(bearingProperties(machine), expected);
}

TEST(BearingProperties, LeaveOutWhatIsNotGiven) {
    const Properties expected = {
        {L"Orbit X Angle", L"90"}, {L"Orbit Y Angle", L"0"}, {L"Orbit Tacho Angle", L"0"}};
    EXPECT_EQ(bearingProperties(MachineFacts()), expected);
}

TEST(BearingProperties, WriteNoExponents) {
    MachineFacts machine;
    machine.clearanceWidth = 1e-5;
    machine.rotation = Rotation::Clockwise;
    const Properties properties = bearingProperties(machine);
    EXPECT_EQ(properties.at(L"Orbit Clearance Width"), L"0.00001");
    EXPECT_EQ(properties.at(L"Orbit Rotation Direction"), L"CW");
}

}  // namespace
}  // namespace Rotavue::Workbench
