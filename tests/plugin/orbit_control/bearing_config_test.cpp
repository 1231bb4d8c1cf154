#include "plugin/orbit_control/bearing_config.h"

#include "tests/plugin/orbit_control/control_test.h"

#include <limits>
#include <stdexcept>

namespace Meridax::VisualControls::Rotavue {
namespace {

class BearingConfigTest : public ControlTest {
protected:
    BearingConfig read(std::map<std::wstring, std::wstring> properties) {
        channel("c").properties = std::move(properties);
        return readBearingConfig(*host.channel("c"));
    }
};

TEST_F(BearingConfigTest, UnsetPropertiesLeaveTheDefaults) {
    const BearingConfig config = read({});
    EXPECT_EQ(config, BearingConfig{});
    EXPECT_EQ(config.xAngle, 0.0);
    EXPECT_EQ(config.clearanceRadiusX, 0.0);
    EXPECT_EQ(config.clearanceRadiusY, 0.0);
    EXPECT_EQ(config.directionText, L"");
}

TEST_F(BearingConfigTest, ClearancesAreHalved) {
    const BearingConfig config = read({{L"Orbit X Angle", L"45"},
                                       {L"Orbit Y Angle", L"-45"},
                                       {L"Orbit Tacho Angle", L"90"},
                                       {L"Orbit Clearance Width", L"10"},
                                       {L"Orbit Clearance Height", L"6"},
                                       {L"Orbit Rotation Direction", L"CCW"}});
    EXPECT_EQ(config.xAngle, 45.0);
    EXPECT_EQ(config.yAngle, -45.0);
    EXPECT_EQ(config.tachoAngle, 90.0);
    EXPECT_EQ(config.clearanceRadiusX, 5.0);
    EXPECT_EQ(config.clearanceRadiusY, 3.0);
    EXPECT_EQ(config.directionText, L"CCW");
}

TEST_F(BearingConfigTest, CommaIsAPointInAClearanceAndTheEndOfAnAngle) {
    const BearingConfig config = read({{L"Orbit X Angle", L"45,5"},
                                       {L"Orbit Y Angle", L"12,5"},
                                       {L"Orbit Tacho Angle", L"7,9"},
                                       {L"Orbit Clearance Width", L"2,5"},
                                       {L"Orbit Clearance Height", L"1,5,7"}});
    EXPECT_EQ(config.xAngle, 45.0);
    EXPECT_EQ(config.yAngle, 12.0);
    EXPECT_EQ(config.tachoAngle, 7.0);
    EXPECT_EQ(config.clearanceRadiusX, 1.25);
    EXPECT_EQ(config.clearanceRadiusY, 0.75) << "every comma: 1.5.7 begins with 1.5";
}

TEST_F(BearingConfigTest, NumbersPassThroughA32BitFloat) {
    const BearingConfig config =
        read({{L"Orbit X Angle", L"0.1"}, {L"Orbit Clearance Width", L"0.2 mm"}});
    EXPECT_EQ(config.xAngle, double{0.1F});
    EXPECT_NE(config.xAngle, 0.1);
    EXPECT_EQ(config.clearanceRadiusX, double{0.2F} * 0.5);
}

TEST_F(BearingConfigTest, ReadsTheSixPropertiesInTheirOrder) {
    channel("c").properties = {{L"Orbit X Angle", L"90"}};
    EXPECT_EQ(callsOf([&] { readBearingConfig(*host.channel("c")); }),
              (Lines{
                  R"(IHostChannel.getProperties[c]() -> "properties")",
                  R"(IHostProperties.getValue("Orbit X Angle") -> "90")",
                  R"(IHostProperties.getValue("Orbit Y Angle") -> "")",
                  R"(IHostProperties.getValue("Orbit Tacho Angle") -> "")",
                  R"(IHostProperties.getValue("Orbit Clearance Width") -> "")",
                  R"(IHostProperties.getValue("Orbit Clearance Height") -> "")",
                  R"(IHostProperties.getValue("Orbit Rotation Direction") -> "")",
              }));
}

TEST_F(BearingConfigTest, TextWithoutANumberIsRefused) {
    try {
        read({{L"Orbit Y Angle", L"up"}});
        FAIL();
    } catch (const std::invalid_argument& error) {
        EXPECT_STREQ(error.what(), "invalid stof argument");
    }
}

TEST_F(BearingConfigTest, NumberBeyondAFloatIsOutOfRange) {
    try {
        read({{L"Orbit Clearance Width", L"1e39"}});
        FAIL();
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "stof argument out of range");
    }
}

TEST_F(BearingConfigTest, TwoAreEqualOnlyInEveryBit) {
    const BearingConfig one{1.0, 2.0, 3.0, 4.0, 5.0, L"CCW"};
    EXPECT_EQ(one, one);
    for (double BearingConfig::*field :
         {&BearingConfig::xAngle, &BearingConfig::yAngle, &BearingConfig::tachoAngle,
          &BearingConfig::clearanceRadiusX, &BearingConfig::clearanceRadiusY}) {
        BearingConfig other = one;
        other.*field = std::nextafter(other.*field, 9.0);
        EXPECT_NE(other, one) << "there is no tolerance";
    }
    BearingConfig other = one;
    other.directionText = L"ccw";
    EXPECT_NE(other, one);
    other.directionText = L"CCW ";
    EXPECT_NE(other, one);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
