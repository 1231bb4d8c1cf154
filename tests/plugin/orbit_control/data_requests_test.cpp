#include "plugin/orbit_control/assignment.h"
#include "tests/plugin/orbit_control/control_test.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

/// Blocks of 1000 samples at 10 kHz from 0:0 to 99:0, the cursor at 50:0.
class DataRequests : public ControlTest {
protected:
    DataRequests() {
        host.description.host.currentPosition = {50, 0};
        host.description.host.lastPosition = {99, 0};
    }

    Lines request() {
        return linesOf(callsOf([&] { control.requestData(first, second); }),
                       "IHostVisualControl.requestData");
    }

    static Lines sent(const std::string& from, const std::string& to, const std::string& ids) {
        return {"IHostVisualControl.requestData(" + from + ", " + to + ", 0, true, " + ids + ")"};
    }

    Host::DataPosition first{1, 2};
    Host::DataPosition second{3, 4};
};

TEST_F(DataRequests, RawChannelAloneSendsNothingAndBothResultsAreZero) {
    assignChannel("raw", L"Raw").sampleRate = 10.0;
    EXPECT_EQ(request(), Lines{});
    EXPECT_EQ(first, Host::DataPosition{});
    EXPECT_EQ(second, Host::DataPosition{});
}

TEST_F(DataRequests, ChannelsNeedTwoSamplesOfTheirOwnRate) {
    for (const wchar_t* type : {L"Average", L"Harmonic", L"Reference", L"SubSync"}) {
        host.description.assigned.channels.clear();
        assignChannel("c", type).sampleRate = 2.5;
        // 2 / 2.5 Hz = 0.8 s; half of it is 4000 samples.
        EXPECT_EQ(request(), sent("[46, 0]", "[54, 0]", R"(["c"])"));
    }
}

TEST_F(DataRequests, ChannelsWithoutARateNeedNothing) {
    assignChannel("c", L"Average").sampleRate = 0.0;
    EXPECT_EQ(request(), Lines{});
}

TEST_F(DataRequests, ShaftCenterNeedsEverything) {
    assignChannel("c", L"");
    EXPECT_EQ(request(), sent("[0, 0]", "[99, 0]", R"(["c"])"));
}

TEST_F(DataRequests, ShaftCenterAsksForTheEndsAnew) {
    assignChannel("c", L"");
    const Lines calls = callsOf([&] { control.requestData(first, second); });
    const auto add = std::ranges::find(calls, R"(IHostChannelList.add("channel:c"))");
    ASSERT_NE(add, calls.end());
    EXPECT_EQ(Lines(add, add + 7),
              (Lines{
                  R"(IHostChannelList.add("channel:c"))",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getFirstPosition() -> [0, 0])",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getLastPosition() -> [99, 0])",
                  R"(IHostVisualControl.requestData([0, 0], [99, 0], 0, true, ["c"]))",
                  R"(IHostChannelList.clear())",
              }));
}

TEST_F(DataRequests, GroupByTimeNeedsTwiceTheTimeShown) {
    assignGroup({"orbit", "tacho"});
    key.graph.setHistoryType(1);
    key.displayTime = 200.0;
    EXPECT_EQ(request(), sent("[48, 0]", "[52, 0]", R"(["orbit", "tacho"])"));
    const Lines calls = callsOf([&] { control.requestData(first, second); });
    EXPECT_TRUE(linesOf(calls, "IHostChannel.getSampleRate").empty()) << "a rate is not needed";
}

TEST_F(DataRequests, GroupByRevolutionsNeedsMostOfItsBuffer) {
    assignGroup({"orbit", "tacho", "third"});
    channel("orbit").bufferSize = 1000;
    channel("orbit").sampleRate = 2000.0;
    // 1000 / 2000 Hz * 0.8 = 0.4 s; half of it is 2000 samples.
    EXPECT_EQ(request(), sent("[48, 0]", "[52, 0]", R"(["orbit", "tacho", "third"])"));
    channel("orbit").sampleRate = 0.0;
    EXPECT_EQ(request(), Lines{});
}

TEST_F(DataRequests, AnyHistoryTypeButTimeNeedsTheBuffer) {
    assignGroup({"orbit"});
    channel("orbit").bufferSize = 1000;
    channel("orbit").sampleRate = 2000.0;
    for (const std::int32_t type : {0, 2, -1}) {
        key.graph.setHistoryType(type);
        EXPECT_EQ(request(), sent("[48, 0]", "[52, 0]", R"(["orbit"])")) << type;
    }
}

TEST_F(DataRequests, UnusableGroupsAreLeftOut) {
    key.graph.setHistoryType(1);
    assignGroup({});
    assignGroup({std::nullopt, "tacho"});
    assignGroup({"orbit"});
    EXPECT_EQ(request(), sent("[49, 0]", "[51, 0]", R"(["orbit"])"));
}

TEST_F(DataRequests, AreHeldInsideTheStoredData) {
    host.description.host.currentPosition = {1, 0};
    assignChannel("c", L"Average").sampleRate = 2.5;
    EXPECT_EQ(request(), sent("[0, 0]", "[5, 0]", R"(["c"])"));
    host.description.host.currentPosition = {99, 0};
    EXPECT_EQ(request(), sent("[95, 0]", "[99, 0]", R"(["c"])"));
}

TEST_F(DataRequests, ChannelsComeFirstAndEachRequestStandsAlone) {
    assignChannel("average", L"Average").sampleRate = 2.5;
    assignChannel("center", L"");
    assignGroup({"orbit"});
    key.graph.setHistoryType(1);
    EXPECT_EQ(request(),
              (Lines{
                  R"(IHostVisualControl.requestData([46, 0], [54, 0], 0, true, ["average"]))",
                  R"(IHostVisualControl.requestData([0, 0], [99, 0], 0, true, ["center"]))",
                  R"(IHostVisualControl.requestData([49, 0], [51, 0], 0, true, ["orbit"]))",
              }));
}

TEST_F(DataRequests, ListIsMadeOnceAndKept) {
    EXPECT_FALSE(key.dataRequestList);
    const Lines calls = callsOf([&] {
        control.requestData(first, second);
        control.requestData(first, second);
    });
    EXPECT_EQ(linesOf(calls, "IHostApp.createChannelList").size(), 1U);
    EXPECT_EQ(calls.front(), R"(IHostApp.createChannelList() -> "list")");
    EXPECT_TRUE(key.dataRequestList);
}

TEST_F(DataRequests, RefusedRequestLeavesTheListAndTheResults) {
    assignChannel("c", L"");
    host.fail(HostKit::operation("IHostVisualControl.requestData"));
    expectHostError(0x80004005, [&] { control.requestData(first, second); });
    EXPECT_EQ(key.dataRequestList->getCount(), 1);
    EXPECT_EQ(first, (Host::DataPosition{1, 2})) << "not zeroed yet";
    EXPECT_EQ(request(), sent("[0, 0]", "[99, 0]", R"(["c", "c"])"));
}

TEST_F(DataRequests, RefusedForEverDoNotFillTheListWithoutEnd) {
    assignChannel("c", L"");
    for (int i = 0; i < 3 * MostAssigned; ++i) {
        host.fail(HostKit::operation("IHostVisualControl.requestData"));
        EXPECT_THROW(control.requestData(first, second), Host::HostError);
    }
    EXPECT_LE(key.dataRequestList->getCount(), MostAssigned + 1);
    EXPECT_GT(key.dataRequestList->getCount(), 0);
}

TEST_F(DataRequests, NullChannelInsideAGroupRaisesWhenItIsAdded) {
    assignGroup({"orbit", std::nullopt});
    key.graph.setHistoryType(1);
    expectHostError(0x80004003, [&] { control.requestData(first, second); });
    EXPECT_EQ(key.dataRequestList->getCount(), 1) << "the orbit channel had been added";
}

TEST_F(DataRequests, BlockSizeOfZeroIsAnInvalidArgumentForAWindowOnly) {
    host.description.host.blockSize = 0;
    assignChannel("center", L"");
    EXPECT_EQ(request().size(), 1U) << "the whole range is not cut";
    assignChannel("average", L"Average").sampleRate = 1.0;
    expectHostError(0x80070057, [&] { control.requestData(first, second); });
    EXPECT_EQ(key.dataRequestList->getCount(), 0) << "the window is cut before a channel is added";
}

TEST_F(DataRequests, WithoutAHostAreAnInvalidPointer) {
    control.hostControl = nullptr;
    expectHostError(0x80004003, [&] { control.requestData(first, second); });
    control.hostApp = nullptr;
    key.dataRequestList = nullptr;
    expectHostError(0x80004003, [&] { control.requestData(first, second); });
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
