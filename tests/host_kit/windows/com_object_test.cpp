#include "host_kit/windows/com_object.h"

#include "tests/host_kit/windows/com_host.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

using Binary::ComRef;
using Binary::queried;

class ComObjectTest : public testing::Test {
protected:
    ComObjectTest() {
        host.description.channels["x"];
        host.description.assigned.groups.emplace_back();
    }

    ComRef<IUnknown> group() { return ComRef<IUnknown>::adopt(ComObject::handOut(host.group(0))); }

    MemoryHost host;
};

TEST_F(ComObjectTest, HasOneIdentityWhateverInterfaceIsAsked) {
    const auto once = group();
    const auto list = asked<Host::IHostChannelList>(once.get());
    const auto info = asked<Host::IHostGroupInfo>(once.get());
    ASSERT_TRUE(list && info);
    EXPECT_NE(list.get(), info.get());
    EXPECT_EQ(queried<IUnknown>(list.get(), IID_IUnknown).get(), once.get());
    EXPECT_EQ(queried<IUnknown>(info.get(), IID_IUnknown).get(), once.get());
    EXPECT_EQ(queried<IDispatch>(info.get(), IID_IDispatch).get(), once.get());
}

TEST_F(ComObjectTest, GivesTheSamePointerAgain) {
    const auto first = handedOut(host.channel("x"));
    EXPECT_EQ(handedOut(host.channel("x")).get(), first.get());
    EXPECT_NE(handedOut(host.channel("y")).get(), first.get());
}

TEST_F(ComObjectTest, RefusesWhatTheHostsObjectDoesNotOffer) {
    const auto channel = handedOut(host.channel("x"));
    void* found = this;
    EXPECT_EQ(
        channel.get()->QueryInterface(Binary::platformGuid(Host::IHostPen::Identifier), &found),
        E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(channel.get()->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ComObjectTest, CountsEachReferenceAsOneToTheHostsObject) {
    {
        auto canvas = handedOut(host.canvas());
        EXPECT_EQ(host.references(), 1);
        EXPECT_EQ(canvas->AddRef(), 2U);
        EXPECT_EQ(host.references(), 2);
        const auto again = asked<Host::IHostCanvas>(canvas.get());
        EXPECT_EQ(host.references(), 3);
        EXPECT_EQ(canvas->Release(), 2U);
        EXPECT_EQ(host.references(), 2);
    }
    EXPECT_EQ(host.references(), 0);
}

TEST_F(ComObjectTest, LetsAPassingObjectGoWithItsLastReference) {
    {
        const auto list = handedOut(host.app()->createChannelList());
        EXPECT_EQ(host.ledger.held(), std::vector<std::string>{"list x 1"});
    }
    EXPECT_EQ(host.references(), 0);
}

TEST_F(ComObjectTest, KnowsItsOwnWhenTheyComeBack) {
    const auto channel = handedOut(host.channel("x"));
    EXPECT_EQ(ComObject::behind<Host::IHostChannel>(channel.get()).get(), host.channel("x").get());
    EXPECT_EQ(host.references(), 1);
}

std::uint32_t refusalOf(IUnknown* object) {
    try {
        ComObject::behind<Host::IHostChannel>(object);
    } catch (const Host::HostError& error) {
        return error.status;
    }
    return 0;
}

TEST_F(ComObjectTest, TakesNoNullNoStrangerAndNoObjectOfAnotherKind) {
    ComRef<ICreateErrorInfo> stranger;
    ASSERT_EQ(::CreateErrorInfo(stranger.put()), S_OK);
    EXPECT_EQ(refusalOf(nullptr), 0x80004003U);
    EXPECT_EQ(refusalOf(stranger.get()), 0x80070057U);
    EXPECT_EQ(refusalOf(handedOut(host.canvas()).get()), 0x80070057U);
}

TEST_F(ComObjectTest, GivesNullForNoObject) {
    EXPECT_EQ(ComObject::handOut(Host::Ref<Host::IHostChannel>()), nullptr);
    EXPECT_EQ(ComObject::handOut(Host::Ref<Host::IHostObject>()), nullptr);
}

TEST_F(ComObjectTest, SaysForWhichInterfacesItTellsDetails) {
    const auto channel = handedOut(host.channel("x"));
    const auto support = queried<ISupportErrorInfo>(channel.get(), IID_ISupportErrorInfo);
    ASSERT_TRUE(support);
    const auto supports = [&](const Host::Guid& identifier) {
        return support.get()->InterfaceSupportsErrorInfo(Binary::platformGuid(identifier));
    };
    EXPECT_EQ(supports(Host::IHostChannel::Identifier), S_OK);
    EXPECT_EQ(supports(Host::IHostPen::Identifier), S_FALSE);
    EXPECT_EQ(queried<IUnknown>(support.get(), IID_IUnknown).get(),
              queried<IUnknown>(channel.get(), IID_IUnknown).get());
}

}  // namespace
}  // namespace Rotavue::HostKit
