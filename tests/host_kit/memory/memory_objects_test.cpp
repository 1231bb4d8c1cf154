#include "host_kit/memory/memory_host.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

using Lines = std::vector<std::string>;

TEST(MemoryApp, AnswersTheFactsOfTheHost) {
    MemoryHost host;
    host.description.host = {{1, 2, 3}, false, true, 7, 2.5, {1, 2}, {3, 4}, {5, 6}, 8, {}};
    const auto data = host.app()->getData();
    EXPECT_EQ(host.app()->getVersion().build, 3);
    EXPECT_FALSE(host.app()->isAcquiring());
    EXPECT_TRUE(data->isWholeDataset());
    EXPECT_EQ(data->getBlockSize(), 7);
    EXPECT_EQ(data->getSampleRate(), 2.5);
    EXPECT_EQ(data->getCurrentPosition(), (Host::DataPosition{1, 2}));
    EXPECT_EQ(data->getFirstPosition(), (Host::DataPosition{3, 4}));
    EXPECT_EQ(data->getLastPosition(), (Host::DataPosition{5, 6}));
    EXPECT_EQ(data->getAcquiredSampleCount(), 8);
}

TEST(MemoryControl, HandsBackTheUsersTextAcceptedOrNot) {
    MemoryHost host;
    std::wstring text = L"before";
    EXPECT_FALSE(host.control()->editText(1, 2, text));
    EXPECT_EQ(text, L"");
    host.description.host.editText = {true, L"3,5"};
    host.record();
    EXPECT_TRUE(host.control()->editText(1, 2, text));
    EXPECT_EQ(text, L"3,5");
    EXPECT_EQ(host.calls(), Lines{R"(IHostVisualControl.editText(1, 2, "") -> [true, "3,5"])"});
}

TEST(MemoryControl, ShowsTheIdsOfARequestWithTheirGaps) {
    MemoryHost host;
    host.description.assigned.groups = {{{"a", std::nullopt}, {}}};
    const auto list = host.group(0).offered<Host::IHostChannelList>();
    host.record(groups({CallGroup::Control}));
    host.control()->requestData({1, 2}, {3, 4}, 0, true, *list);
    EXPECT_EQ(host.calls(), Lines{"IHostVisualControl.requestData([1, 2], [3, 4], 0, true, "
                                  "[\"a\", null])"});
}

TEST(MemoryCollections, FollowTheAssignment) {
    MemoryHost host;
    const auto channels = host.control()->getChannels();
    const auto groups = host.control()->getGroups();
    EXPECT_EQ(channels->getCount() + groups->getCount(), 0);
    host.description.assigned.channels = {"a", std::nullopt};
    host.description.assigned.groups = {{{"b"}, {}}};
    EXPECT_EQ(channels->getCount(), 2);
    EXPECT_EQ(channels->getItem(0), host.channel("a"));
    EXPECT_FALSE(channels->getItem(1));
    EXPECT_FALSE(channels->getItem(2));
    EXPECT_FALSE(channels->getItem(-1));
    EXPECT_EQ(groups->getItem(0), host.group(0));
    EXPECT_FALSE(groups->getItem(1));
}

TEST(MemoryGroup, IsEmptyWhenItIsNoLongerAssigned) {
    MemoryHost host;
    host.description.assigned.groups = {{{"a"}, {{L"OrbitType", L"Raw"}}}};
    const auto list = host.group(0).offered<Host::IHostChannelList>();
    const auto properties = host.group(0).offered<Host::IHostGroupInfo>()->getProperties();
    host.description.assigned.groups.clear();
    EXPECT_EQ(list->getCount(), 0);
    EXPECT_FALSE(list->getItem(0));
    EXPECT_EQ(properties->getValue(L"OrbitType"), L"");
    list->add(*host.channel("a"));
    list->clear();
    EXPECT_EQ(list->getCount(), 0);
}

TEST(MemoryGroup, OffersItsTwoInterfacesAndNoOther) {
    MemoryHost host;
    const auto group = host.group(0);
    EXPECT_TRUE(group.offered<Host::IHostGroupInfo>().offered<Host::IHostChannelList>());
    EXPECT_EQ(group.offered<Host::IHostObject>(), group);
    EXPECT_FALSE(group.offered<Host::IHostChannel>());
    EXPECT_EQ(host.references(), 1);
}

TEST(MemoryChannelList, KeepsChannelsOfItsHostOnly) {
    MemoryHost host;
    MemoryHost other;
    const auto list = host.app()->createChannelList();
    list->add(*host.channel("a"));
    list->add(*host.channel("b"));
    EXPECT_EQ(list->getCount(), 2);
    EXPECT_EQ(list->getItem(1), host.channel("b"));
    EXPECT_THROW(list->add(*other.channel("a")), Host::HostError);
    list->clear();
    EXPECT_EQ(list->getCount(), 0);
}

TEST(MemorySlots, GiveTheirKindAsItIsNow) {
    MemoryHost host;
    host.description.assigned.slots = {{1}};
    const auto slot = host.control()->getSlots()->getSlot(0);
    EXPECT_EQ(slot->getKind(), 1);
    EXPECT_FALSE(host.control()->getSlots()->getSlot(1));
    host.description.assigned.slots.clear();
    EXPECT_EQ(slot->getKind(), 0);
}

TEST(MemoryCanvas, MeasuresByItsFixedMetrics) {
    MemoryHost host;
    host.description.canvas = {20, 5, 7};
    const auto canvas = host.canvas();
    canvas->GetFont()->SetHeight(99);
    EXPECT_EQ(canvas->TextWidth(L"\u00b5m\U0001F600"), 15);
    EXPECT_EQ(canvas->TextHeight(L"Aj"), 7);
    EXPECT_EQ(canvas->GetFont()->GetHeight(), 99);
    host.description.canvas.charWidth = 0x7FFFFFFF;
    EXPECT_EQ(canvas->TextWidth(L"ab"), -2) << "a width beyond 32 bits is cut to them";
}

TEST(MemoryCanvas, HandsOnWhatIsDrawnAndTheStateThatItHas) {
    MemoryHost host;
    MemoryHost other;
    const auto canvas = host.canvas();
    canvas->GetPen()->SetWidth(2);
    canvas->GetBrush()->SetStyle(1);
    canvas->GetFont()->SetColor(5);
    other.record();
    host.drawAlsoOn(other.canvas());
    canvas->GetPen()->SetColor(7);
    canvas->Polygon({1, 2, 3, 4}, 2);
    EXPECT_EQ(canvas->TextWidth(L"x"), 8);
    host.drawAlsoOn(nullptr);
    canvas->MoveTo(9, 9);
    Lines drawn;
    for (const std::string& line : other.takeCalls()) {
        if (line.find(".Get") == std::string::npos) drawn.push_back(line);
    }
    EXPECT_EQ(drawn, (Lines{"IHostPen.SetWidth(2)", "IHostBrush.SetStyle(1)",
                            "IHostFont.SetHeight(16)", "IHostFont.SetColor(5)",
                            "IHostPen.SetColor(7)", "IHostCanvas.Polygon([1, 2, 3, 4], 2)"}));
    EXPECT_EQ(other.references(), 0);
}

TEST(Ledger, AddsUpWhatIsHeldOfEachObject) {
    MemoryHost host;
    {
        const auto pen = host.canvas()->GetPen();
        const auto list = host.app()->createChannelList();
        const auto twice = list;
        EXPECT_EQ(host.ledger.held(), (Lines{"list x 2", "pen x 1"}));
        EXPECT_EQ(host.references(), 3);
    }
    EXPECT_EQ(host.references(), 0);
    EXPECT_TRUE(host.ledger.held().empty());
}

}  // namespace
}  // namespace Rotavue::HostKit
