#include "host_kit/memory/memory_host.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

using Lines = std::vector<std::string>;

TEST(MemoryHost, AnswersFromTheDescriptionAsItIsNow) {
    MemoryHost host;
    host.description.channels["orbit"].values[4] = {1.5, 2.5};
    const auto channel = host.channel("orbit");
    EXPECT_EQ(channel->getValue(1, 4), 2.5);
    host.description.channels["orbit"].values[4] = {7.0};
    EXPECT_EQ(channel->getValue(0, 4), 7.0);
    EXPECT_EQ(channel->getValue(1, 4), 0.0);
}

TEST(MemoryHost, GivesOneObjectHoweverOftenItIsAsked) {
    MemoryHost host;
    host.description.assigned.groups = {{{"orbit", std::nullopt}, {{L"OrbitType", L"Raw"}}}};
    const auto group = host.control()->getGroups()->getItem(0);
    EXPECT_EQ(group, host.control()->getGroups()->getItem(0));
    const auto list = group.offered<Host::IHostChannelList>();
    EXPECT_EQ(list->getItem(0), host.channel("orbit"));
    EXPECT_FALSE(list->getItem(1));
    EXPECT_EQ(group.offered<Host::IHostGroupInfo>()->getProperties()->getValue(L"OrbitType"),
              L"Raw");
}

TEST(MemoryHost, WritesDownTheCallsOfTheChosenGroups) {
    MemoryHost host;
    host.record(groups({CallGroup::Draw, CallGroup::Control}));
    const auto canvas = host.canvas();
    canvas->GetPen()->SetColor(0xFFFFFFFF);
    canvas->TextOut(1, -2, L"\u00b5m \"x\"");
    canvas->TextWidth(L"x");
    host.app()->showMessage(L"no");
    EXPECT_EQ(host.takeCalls(), (Lines{"IHostPen.SetColor(4294967295)",
                                       "IHostCanvas.TextOut(1, -2, \"\u00b5m \\\"x\\\"\")",
                                       "IHostApp.showMessage(\"no\")"}));
    EXPECT_TRUE(host.calls().empty());
}

TEST(MemoryHost, NamesTheObjectThatWasCalledAndWhatItGave) {
    MemoryHost host;
    host.description.assigned.channels = {"a"};
    host.record();
    host.control()->getChannels()->getItem(0)->getValue(3, 4);
    EXPECT_EQ(host.calls(), (Lines{"IHostVisualControl.getChannels() -> \"channels\"",
                                   "IHostChannelCollection.getItem(0) -> \"channel:a\"",
                                   "IHostChannel.getValue[a](3, 4) -> 0"}));
}

TEST(MemoryHost, FailsAtTheChosenCallAndOnlyThere) {
    MemoryHost host;
    host.fail(operation("IHostApp.getData"), 2);
    const auto app = host.app();
    EXPECT_TRUE(app->getData());
    try {
        app->getData();
        FAIL() << "the second call did not fail";
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, Host::Status::Unspecified);
        EXPECT_EQ(error.interfaceId, Host::IHostApp::Identifier);
    }
    EXPECT_TRUE(app->getData());
}

TEST(MemoryHost, CountsWhatIsHeldFromOutside) {
    MemoryHost host;
    EXPECT_EQ(host.references(), 0);
    auto app = host.app();
    auto list = app->createChannelList();
    list->add(*host.channel("orbit"));
    const auto again = list;
    EXPECT_EQ(host.ledger.held(), (Lines{"app x 1", "list x 2"}));
    EXPECT_EQ(host.references(), 3);
}

}  // namespace
}  // namespace Rotavue::HostKit
