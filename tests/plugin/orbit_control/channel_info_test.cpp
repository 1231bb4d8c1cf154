#include "plugin/orbit_control/channel_info.h"

#include "tests/plugin/orbit_control/control_test.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

class ChannelInfoTest : public ControlTest {
protected:
    ChannelInfoTest() {
        HostKit::ChannelDescription& described = channel("c");
        described.name = L"Shaft";
        described.unit = L"um";
        described.color = 0x0000FF;
        described.displayValue = 2.5;
        described.axes = {{{-180.0, 1.40625}}};
    }

    const Host::Ref<Host::IHostChannel> ref = host.channel("c");
};

TEST_F(ChannelInfoTest, ScalarChannelKeepsTheAxisOfANewRecord) {
    const ChannelInfo info = fillChannelInfo(*ref);
    EXPECT_EQ(info.axisStart, 0.0);
    EXPECT_EQ(info.axisStep, 100.0);
    EXPECT_EQ(info.color, 0x0000FFU);
    EXPECT_EQ(info.unit, L"um");
    EXPECT_EQ(info.name, L"Shaft");
    EXPECT_EQ(info.displayValue, 2.5);
    EXPECT_EQ(info.reserved, (std::array<double, 2>{0.0, 1.0}));
}

TEST_F(ChannelInfoTest, ArrayChannelTellsItsAxis) {
    channel("c").array = true;
    const ChannelInfo info = fillChannelInfo(*ref);
    EXPECT_EQ(info.axisStart, -180.0);
    EXPECT_EQ(info.axisStep, 1.40625);
}

TEST_F(ChannelInfoTest, AsksInTheOrderOfTheRecord) {
    channel("c").array = true;
    EXPECT_EQ(callsOf([&] { fillChannelInfo(*ref); }),
              (Lines{
                  R"(IHostChannel.getColor[c]() -> 255)",
                  R"(IHostChannel.isArray[c]() -> true)",
                  R"(IHostChannel.getAxes[c]() -> "axes")",
                  R"(IHostAxisList.getAxis(0) -> "axis:0")",
                  R"(IHostAxis.getStart() -> -180)",
                  R"(IHostAxis.getStep() -> 1.40625)",
                  R"(IHostChannel.getUnit[c]() -> "um")",
                  R"(IHostChannel.getName[c]() -> "Shaft")",
                  R"(IHostChannel.getDisplayValue[c]() -> 2.5)",
              }));
}

TEST_F(ChannelInfoTest, ArrayWithoutAnAxisIsAnInvalidPointer) {
    channel("c").array = true;
    channel("c").axes->clear();
    expectHostError(0x80004003, [&] { fillChannelInfo(*ref); });
    channel("c").axes.reset();
    expectHostError(0x80004003, [&] { fillChannelInfo(*ref); });
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
