#include "plugin/orbit_control/assignment.h"

#include "tests/plugin/orbit_control/control_test.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

struct GroupCase {
    const char* what;
    std::vector<HostKit::ChannelItem> channels;
    bool usable;
    bool hasTacho;
};

const GroupCase Groups[] = {
    {"nothing", {}, false, false},
    {"an orbit", {"orbit"}, true, false},
    {"a null orbit", {std::nullopt}, false, false},
    {"orbit and tacho", {"orbit", "tacho"}, true, true},
    {"orbit and a null tacho", {"orbit", std::nullopt}, true, false},
    {"a null orbit with tacho", {std::nullopt, "tacho"}, false, true},
    {"three channels", {"orbit", "tacho", "third"}, true, false},
};

class Assignment : public ControlTest {};

TEST_F(Assignment, OneOrbitChannelMakesAGroupUsableAndASecondOneIsItsTacho) {
    for (const GroupCase& each : Groups) {
        host.description.assigned.groups = {{each.channels, {}}};
        EXPECT_EQ(isOrbitGroupUsable(*group(0)), each.usable) << each.what;
        EXPECT_EQ(hasTachoChannel(*group(0)), each.hasTacho) << each.what;
    }
}

TEST_F(Assignment, EveryWalkFetchesTheCollectionAnew) {
    host.description.assigned.channels = {"a", "b"};
    EXPECT_EQ(callsOf([&] { forEachChannel(control.hostControl, [](Host::IHostChannel&) {}); }),
              (Lines{
                  R"(IHostVisualControl.getChannels() -> "channels")",
                  R"(IHostChannelCollection.getCount() -> 2)",
                  R"(IHostChannelCollection.getItem(0) -> "channel:a")",
                  R"(IHostChannelCollection.getItem(1) -> "channel:b")",
              }));
}

TEST_F(Assignment, WalksEndAfterFourThousandAndNinetySix) {
    host.description.assigned.channels.assign(4097, "a");
    host.description.assigned.groups.assign(4097, {{"orbit"}, {}});
    int channels = 0;
    int groups = 0;
    forEachChannel(control.hostControl, [&](Host::IHostChannel&) { ++channels; });
    forEachGroup(control.hostControl, [&](Host::IHostChannelList&) { ++groups; });
    EXPECT_EQ(channels, 4096);
    EXPECT_EQ(groups, 4096);
}

TEST_F(Assignment, NullChannelRaisesWhenItsTurnComes) {
    host.description.assigned.channels = {"a", std::nullopt, "b"};
    int walked = 0;
    expectHostError(0x80004003, [&] {
        forEachChannel(control.hostControl, [&](Host::IHostChannel&) { ++walked; });
    });
    EXPECT_EQ(walked, 1);
}

TEST_F(Assignment, NullGroupRaisesAnInvalidPointer) {
    assignGroup({"orbit"});
    host.gate.setNulls(
        HostKit::Operations{}.set(indexOf(HostKit::operation("IHostGroupCollection.getItem"))));
    expectHostError(0x80004003,
                    [&] { forEachGroup(control.hostControl, [](Host::IHostChannelList&) {}); });
}

TEST_F(Assignment, WithoutAHostNothingCanBeWalked) {
    control.hostControl = nullptr;
    expectHostError(0x80004003,
                    [&] { forEachChannel(control.hostControl, [](Host::IHostChannel&) {}); });
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
