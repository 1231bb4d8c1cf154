#include "tests/plugin/orbit_control/control_test.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

class ChannelChecks : public ControlTest {
protected:
    bool acceptsGroup(std::map<std::wstring, std::wstring> properties) {
        host.description.assigned.groups = {{{}, std::move(properties)}};
        return control.acceptsGroup(host.group(0));
    }

    void assignTwoGroups() {
        assignGroup({"orbit 1", "tacho"});
        assignGroup({"orbit 2", "tacho"});
        host.description.assigned.slots = {{0}, {1}};
    }
};

TEST_F(ChannelChecks, ChannelsOfTwoTypesAreAccepted) {
    const std::pair<const wchar_t*, bool> cases[] = {{L"ShaftCenter", true},
                                                     {L"Orbit", true},
                                                     {L"orbit", false},
                                                     {L"Orbits", false},
                                                     {L"", false}};
    for (const auto& [type, accepted] : cases) {
        channel("c").properties = {{L"OrbitAnalysisChannelType", type}};
        EXPECT_EQ(control.acceptsChannel(host.channel("c")), accepted);
    }
}

TEST_F(ChannelChecks, GroupsThatReadAsRawAreAccepted) {
    EXPECT_TRUE(acceptsGroup({{L"OrbitType", L"Raw"}}));
    EXPECT_TRUE(acceptsGroup({{L"OrbitType", L"a text that nobody knows"}}));
    EXPECT_FALSE(acceptsGroup({{L"OrbitType", L""}}));
    EXPECT_FALSE(acceptsGroup({}));
    EXPECT_FALSE(acceptsGroup({{L"OrbitType", L"Average"}}));
}

TEST_F(ChannelChecks, ReleaseWhatTheyWereGiven) {
    control.hostApp = nullptr;
    control.hostControl = nullptr;
    acceptsGroup({{L"OrbitType", L"Raw"}});
    control.acceptsChannel(host.channel("c"));
    EXPECT_EQ(host.references(), 0) << "and need no host to answer";
}

TEST_F(ChannelChecks, NullIsAnInvalidPointer) {
    expectHostError(0x80004003, [&] { control.acceptsChannel(nullptr); });
    expectHostError(0x80004003, [&] { control.acceptsGroup(nullptr); });
}

TEST_F(ChannelChecks, ObjectThatIsNoGroupIsAnInvalidPointer) {
    expectHostError(0x80004003,
                    [&] { control.acceptsGroup(host.channel("c").offered<Host::IHostObject>()); });
}

TEST_F(ChannelChecks, SlotsOfOtherKindsAreNotLookedAt) {
    assignTwoGroups();
    host.description.assigned.groups[0].channels.pop_back();
    EXPECT_EQ(callsOf([&] { control.onChannelsChanged(0); }),
              (Lines{
                  R"(IHostVisualControl.getSlots() -> "slots")",
                  R"(IHostSlotList.getSlot(0) -> "slot:0")",
                  R"(IHostSlot.getKind() -> 0)",
              }));
    EXPECT_FALSE(key.tachoMissing);
    EXPECT_EQ(key.graph.historyType(), 0);
}

TEST_F(ChannelChecks, GroupThatLosesItsTachoMovesTheHistoryToTime) {
    assignTwoGroups();
    control.onChannelsChanged(1);
    EXPECT_FALSE(key.tachoMissing);
    host.description.assigned.groups[0].channels.pop_back();
    const Lines calls = callsOf([&] { control.onChannelsChanged(1); });
    EXPECT_TRUE(key.tachoMissing);
    EXPECT_EQ(key.graph.historyType(), 1);
    EXPECT_EQ(linesOf(calls, "IHostVisualControl.refreshSetup").size(), 1U);
    EXPECT_EQ(calls.back(), "IHostVisualControl.refreshSetup()") << "after all groups";
    EXPECT_EQ(linesOf(calls, "IHostChannelList.getCount").size(), 2U);
}

TEST_F(ChannelChecks, SetupIsShownAgainOnceHoweverManyGroupsLostTheirTacho) {
    assignTwoGroups();
    for (auto& group : host.description.assigned.groups)
        group.channels.pop_back();
    const Lines calls = callsOf([&] { control.onChannelsChanged(1); });
    EXPECT_EQ(linesOf(calls, "IHostVisualControl.refreshSetup").size(), 1U);
    EXPECT_TRUE(key.tachoMissing);
}

TEST_F(ChannelChecks, HistoryByTimeStaysAndNothingIsShownAgain) {
    assignTwoGroups();
    key.graph.setHistoryType(1);
    host.description.assigned.groups[1].channels[1] = std::nullopt;
    const Lines calls = callsOf([&] { control.onChannelsChanged(1); });
    EXPECT_TRUE(key.tachoMissing) << "a null tacho is none";
    EXPECT_TRUE(linesOf(calls, "IHostVisualControl.refreshSetup").empty());
}

TEST_F(ChannelChecks, OnlyHistoryByRevolutionsIsMoved) {
    assignTwoGroups();
    host.description.assigned.groups[0].channels.pop_back();
    key.graph.setHistoryType(2);  // a number of a damaged setup
    control.onChannelsChanged(1);
    EXPECT_TRUE(key.tachoMissing);
    EXPECT_EQ(key.graph.historyType(), 2);
}

TEST_F(ChannelChecks, TachoChannelsThatAreBackEndTheFaultButNotTheHistoryByTime) {
    assignTwoGroups();
    host.description.assigned.groups[0].channels.push_back("third");
    control.onChannelsChanged(1);
    EXPECT_TRUE(key.tachoMissing) << "three channels are no orbit with its tacho";
    host.description.assigned.groups[0].channels.pop_back();
    control.onChannelsChanged(1);
    EXPECT_FALSE(key.tachoMissing);
    EXPECT_EQ(key.graph.historyType(), 1);
}

TEST_F(ChannelChecks, FailureAtTheSecondGroupKeepsWhatTheFirstDid) {
    assignTwoGroups();
    host.description.assigned.groups[0].channels.pop_back();
    host.fail(HostKit::operation("IHostChannelList.getCount"), 2);
    host.record();
    expectHostError(0x80004005, [&] { control.onChannelsChanged(1); });
    EXPECT_TRUE(key.tachoMissing);
    EXPECT_EQ(key.graph.historyType(), 1);
    EXPECT_TRUE(linesOf(host.calls(), "IHostVisualControl.refreshSetup").empty());
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
