#include "tests/plugin/orbit_control/control_test.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

class BearingCheck : public ControlTest {
protected:
    HostKit::ChannelDescription& assign(const std::string& id, const std::wstring& xAngle) {
        HostKit::ChannelDescription& described = assignChannel(id, L"Raw");
        described.properties[L"Orbit X Angle"] = xAngle;
        return described;
    }
};

TEST_F(BearingCheck, NothingAssignedIsInOrder) {
    EXPECT_TRUE(key.checkBearingConfig());
    EXPECT_TRUE(key.bearingConfigs.empty());
}

TEST_F(BearingCheck, ComparesEveryChannelWithTheFirst) {
    assign("a", L"45");
    EXPECT_TRUE(key.checkBearingConfig());
    assign("b", L"45.0");
    EXPECT_TRUE(key.checkBearingConfig()) << "the numbers are compared, not their texts";
    assign("c", L"46");
    EXPECT_FALSE(key.checkBearingConfig());
}

TEST_F(BearingCheck, DirectionsThatDifferInCaseDoNotMatch) {
    assign("a", L"45").properties[L"Orbit Rotation Direction"] = L"CCW";
    assign("b", L"45").properties[L"Orbit Rotation Direction"] = L"ccw";
    EXPECT_FALSE(key.checkBearingConfig());
}

TEST_F(BearingCheck, OrbitChannelOfAGroupIsComparedAndItsTachoIsNot) {
    assign("a", L"45");
    channel("orbit").properties[L"Orbit X Angle"] = L"45";
    channel("tacho").properties[L"Orbit X Angle"] = L"10";
    assignGroup({"orbit", "tacho"});
    EXPECT_TRUE(key.checkBearingConfig());
    channel("orbit").properties[L"Orbit X Angle"] = L"44";
    EXPECT_FALSE(key.checkBearingConfig());
}

TEST_F(BearingCheck, UnusableGroupsAreLeftOut) {
    assign("a", L"45");
    assignGroup({});
    assignGroup({std::nullopt, "tacho"});
    EXPECT_TRUE(key.checkBearingConfig());
    EXPECT_EQ(key.bearingConfigs.size(), 1U);
}

TEST_F(BearingCheck, KeepsTheFirstAndTheFirstThatDiffersHoweverManyThereAre) {
    const std::wstring text(1'000'000, L'C');
    for (const char* id : {"a", "b", "c"})
        assign(id, L"45").properties[L"Orbit Rotation Direction"] = text;
    EXPECT_TRUE(key.checkBearingConfig());
    EXPECT_EQ(key.bearingConfigs.size(), 1U);
    assign("d", L"46");
    assign("e", L"47");
    EXPECT_FALSE(key.checkBearingConfig());
    ASSERT_EQ(key.bearingConfigs.size(), 2U);
    EXPECT_EQ(key.bearingConfigs[0].directionText, text);
    EXPECT_EQ(key.bearingConfigs[1].xAngle, 46.0);
}

TEST_F(BearingCheck, StartsAnewEachTime) {
    assign("a", L"45");
    assign("b", L"46");
    EXPECT_FALSE(key.checkBearingConfig());
    EXPECT_FALSE(key.checkBearingConfig());
    EXPECT_EQ(key.bearingConfigs.size(), 2U);
    host.description.assigned.channels.pop_back();
    EXPECT_TRUE(key.checkBearingConfig());
}

TEST_F(BearingCheck, AnAngleThatIsNoNumberAgreesWithNothing) {
    assign("a", L"nan");
    EXPECT_TRUE(key.checkBearingConfig()) << "there is nothing to compare with";
    assign("b", L"nan");
    EXPECT_FALSE(key.checkBearingConfig());
}

TEST_F(BearingCheck, NullChannelIsAnInvalidPointer) {
    host.description.assigned.channels.emplace_back(std::nullopt);
    expectHostError(0x80004003, [&] { key.checkBearingConfig(); });
}

TEST_F(BearingCheck, GivesWhatFollowsAWholeAllowance) {
    key.pointAllowance.take(ReadAllowance::Places);
    key.turnAllowance.take(ReadAllowance::Places);
    key.stampAllowance.take(ReadAllowance::Places);
    key.checkBearingConfig();
    EXPECT_TRUE(key.pointAllowance.take());
    EXPECT_TRUE(key.turnAllowance.take());
    EXPECT_TRUE(key.stampAllowance.take());
}

class BearingApplication : public ControlTest {};

TEST_F(BearingApplication, ReachesBothCopies) {
    channel("c").properties = {{L"Orbit X Angle", L"1"},
                               {L"Orbit Y Angle", L"2"},
                               {L"Orbit Tacho Angle", L"3"},
                               {L"Orbit Clearance Width", L"8"},
                               {L"Orbit Clearance Height", L"10"}};
    key.applyBearingConfig(*host.channel("c"));
    EXPECT_EQ(key.bearing, (BearingConfig{1.0, 2.0, 3.0, 5.0, 4.0, L""}));
    EXPECT_EQ(key.graph.xAngle(), 1.0);
    EXPECT_EQ(key.graph.yAngle(), 2.0);
    EXPECT_EQ(key.graph.tachoAngle(), 3.0);
    EXPECT_EQ(key.graph.clearanceRadiusX(), 4.0);
    EXPECT_EQ(key.graph.clearanceRadiusY(), 5.0);
}

TEST_F(BearingApplication, OnlyExactlyCcwRunsCounterClockwise) {
    const std::pair<const wchar_t*, int> cases[] = {
        {L"CCW", 0}, {L"CW", 1}, {L"", 1}, {L"ccw", 1}, {L"CCW ", 1}};
    for (const auto& [text, direction] : cases) {
        channel("c").properties = {{L"Orbit Rotation Direction", text}};
        key.applyBearingConfig(*host.channel("c"));
        EXPECT_EQ(key.graph.rotationDirection(), direction);
    }
}

TEST_F(BearingApplication, TakesThePanBack) {
    key.graph.panBy(5.0, 6.0);
    key.applyBearingConfig(*host.channel("c"));
    EXPECT_EQ(key.graph.state().panX, 0.0);
    EXPECT_EQ(key.graph.state().panY, 0.0);
}

TEST_F(BearingApplication, LeavesTheOldBearingWhenATextIsRefused) {
    channel("c").properties = {{L"Orbit X Angle", L"30"}};
    key.applyBearingConfig(*host.channel("c"));
    channel("c").properties = {{L"Orbit X Angle", L"60"}, {L"Orbit Y Angle", L"?"}};
    EXPECT_THROW(key.applyBearingConfig(*host.channel("c")), std::invalid_argument);
    EXPECT_EQ(key.bearing.xAngle, 30.0);
    EXPECT_EQ(key.graph.xAngle(), 30.0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
