#include "plugin/framework/bridge.h"

#include "tests/plugin/framework/doubles/bridge_fixture.h"
#include "tests/plugin/framework/doubles/counted_host.h"

#include <gtest/gtest.h>

#include <deque>
#include <stdexcept>
#include <utility>

/// The life of a bridge and its identity.
namespace Meridax::VisualControls::Api {
namespace {

using Calls = std::vector<std::string>;

class Bridge : public BridgeFixture {};

TEST_F(Bridge, ControlExistsBeforeTheFirstMessage) {
    EXPECT_NE(record.control, nullptr);
    EXPECT_FALSE(record.control->hostApp);
}

TEST_F(Bridge, CountsAsOneLivingObject) {
    EXPECT_TRUE(liveObjects.any());
    plugin = nullptr;
    EXPECT_FALSE(liveObjects.any());
}

TEST_F(Bridge, EndsWithItsLastReference) {
    auto second = plugin;
    plugin = nullptr;
    EXPECT_EQ(record.calls, Calls{});
    second = nullptr;
    EXPECT_EQ(record.calls, Calls{"~"});
}

TEST_F(Bridge, OffersItsTwoInterfacesAndOneIdentity) {
    const auto identity = plugin.offered<Host::IHostObject>();
    const auto dispatch = plugin.offered<IVCPluginImpl>();
    ASSERT_TRUE(dispatch);
    EXPECT_EQ(dispatch.offered<Host::IHostObject>(), identity);
    EXPECT_EQ(dispatch.offered<IMeridaxPlugin>(), plugin);
    EXPECT_FALSE(plugin.offered<Host::IHostApp>());
}

TEST_F(Bridge, DestroysTheControlThenItsHostControlThenItsApp) {
    std::vector<std::string>& log = record.calls;
    Host::CountedApp app("app", log);
    Host::CountedControl hostControl("control", log);
    send(MessageCode::Attach, {object(Host::Ref<Host::IHostApp>::share(&app)),
                               object(Host::Ref<Host::IHostVisualControl>::share(&hostControl))});
    log.clear();
    plugin = nullptr;
    // The control's own two references go with it, the app first.
    EXPECT_EQ(log,
              (Calls{"~", "release app", "release control", "release control", "release app"}));
}

TEST_F(Bridge, ReleasedInsideACallbackEndsAfterTheMessage) {
    record.during = [this] {
        plugin = nullptr;
        EXPECT_EQ(record.calls, Calls{"onClose"});
        EXPECT_TRUE(liveObjects.any());
    };
    send(MessageCode::Close);
    EXPECT_EQ(record.calls, (Calls{"onClose", "~"}));
    EXPECT_FALSE(liveObjects.any());
}

TEST_F(Bridge, ReleasedInsideACallbackThatFailsEndsAfterTheMessage) {
    record.during = [this] {
        plugin = nullptr;
        Host::raiseNullObject();
    };
    EXPECT_EQ(thrownBy(MessageCode::DataWindow, nullptr), 0x80004003U);
    EXPECT_EQ(record.calls, (Calls{"requestData", "~"}));
}

TEST_F(Bridge, AnswersAreWrittenAfterTheHostReleasedIt) {
    record.first = {1, 2};
    record.second = {3, 4};
    record.during = [this] { plugin = nullptr; };
    send(MessageCode::DataWindow);
    EXPECT_EQ(result.text, "four 1 2 3 4");
}

TEST_F(Bridge, ReferenceTakenWhileItEndsEndsItOnce) {
    std::vector<std::string> log;
    Host::CountedApp app("app", log);
    send(MessageCode::Attach, {object(Host::Ref<Host::IHostApp>::share(&app)), nullObject()});
    IMeridaxPlugin* const borrowed = plugin.get();
    app.onRelease = [&] {
        borrowed->retain();
        borrowed->release();
    };
    plugin = nullptr;
    EXPECT_EQ(record.calls, (Calls{"onAttached", "~"}));
    EXPECT_EQ(app.count, 0);
}

TEST_F(Bridge, MessageInsideAMessageIsServed) {
    bool inside = false;
    record.during = [&] {
        if (!std::exchange(inside, true)) send(MessageCode::PointerLeft);
    };
    send(MessageCode::PointerEntered);
    EXPECT_EQ(record.calls, (Calls{"onMouseEnter", "onMouseLeave"}));
}

TEST_F(Bridge, HostObjectsThatAreReplacedInsideACallbackLiveUntilItIsOver) {
    Calls log;
    Host::CountedApp app("app", log);
    Host::CountedControl hostControl("control", log);
    send(MessageCode::Attach, {object(Host::Ref<Host::IHostApp>::share(&app)),
                               object(Host::Ref<Host::IHostVisualControl>::share(&hostControl))});
    bool replaced = false;
    record.during = [&] {
        if (std::exchange(replaced, true)) return;
        attach();
        EXPECT_GT(app.count, 0) << "one of its operations may be running";
        EXPECT_GT(hostControl.count, 0);
    };
    send(MessageCode::PointerEntered);
    EXPECT_EQ(app.count, 0);
    EXPECT_EQ(hostControl.count, 0);
}

TEST_F(Bridge, HostThatIsReplacedWithoutEndInsideACallbackIsRefused) {
    Calls log;
    std::deque<Host::CountedApp> apps;
    int served = 0;
    bool inside = false;
    record.during = [&] {
        if (std::exchange(inside, true)) return;
        try {
            for (; served < 5000; ++served) {
                Host::CountedApp& app = apps.emplace_back("app", log);
                send(MessageCode::Attach,
                     {object(Host::Ref<Host::IHostApp>::share(&app)), nullObject()});
            }
        } catch (const Host::HostError& error) {
            EXPECT_EQ(error.status, 0x80004005U);
        }
    };
    send(MessageCode::PointerEntered);
    EXPECT_EQ(served, 1000) << "the host of the outer message among them";
    plugin = nullptr;
    for (const Host::CountedApp& app : apps)
        EXPECT_EQ(app.count, 0);
}

TEST_F(Bridge, ErrorOfAnyKindPasses) {
    record.during = [] { throw std::out_of_range("stof argument out of range"); };
    EXPECT_THROW(send(MessageCode::Close), std::out_of_range);
    record.during = nullptr;
    EXPECT_EQ(send(MessageCode::Close), 0);
}

TEST_F(Bridge, FailureOfTheMakerPassesAndCountsNoObject) {
    plugin = nullptr;
    makeControl = []() -> std::unique_ptr<VisualControl> { throw std::runtime_error("no"); };
    EXPECT_THROW(VisualControlBridge::create(needs), std::runtime_error);
    EXPECT_FALSE(liveObjects.any());
}

TEST_F(Bridge, MakerThatMakesNothingRaisesInvalidPointer) {
    makeControl = [] { return std::unique_ptr<VisualControl>(); };
    EXPECT_THROW(VisualControlBridge::create(needs), Host::HostError);
}

/// An outer object into which a bridge is aggregated.
class Outer final : public Host::IHostObject {
public:
    void retain() noexcept override { ++count; }
    void release() noexcept override { --count; }
    void* offer(const Host::Guid& interfaceId) override {
        if (interfaceId != Identifier) return inner->offer(interfaceId);
        retain();
        return static_cast<IHostObject*>(this);
    }

    int count = 1;
    Host::Ref<Host::IHostObject> inner;
};

class AggregatedBridge : public BridgeFixture {
protected:
    AggregatedBridge() {
        plugin = nullptr;
        record.calls.clear();
        outer.inner = VisualControlBridge::create(needs, &outer);
    }

    Outer outer;
};

TEST_F(AggregatedBridge, ForwardsTheIdentityOperationsToTheOuterObject) {
    plugin = Host::Ref<Host::IHostObject>::share(&outer).offered<IMeridaxPlugin>();
    EXPECT_EQ(outer.count, 2);
    EXPECT_EQ(plugin.offered<Host::IHostObject>().get(), &outer);
    plugin = nullptr;
    EXPECT_EQ(outer.count, 1);
}

TEST_F(AggregatedBridge, HoldsTheOuterObjectForTheLengthOfAMessage) {
    plugin = Host::Ref<Host::IHostObject>::share(&outer).offered<IMeridaxPlugin>();
    record.during = [this] { EXPECT_EQ(outer.count, 3); };
    EXPECT_EQ(send(MessageCode::Close), 0);
    EXPECT_EQ(record.calls, Calls{"onClose"});
    plugin = nullptr;
}

TEST_F(AggregatedBridge, EndsWithTheReferenceOfItsOwnIdentity) {
    outer.inner = nullptr;
    EXPECT_EQ(record.calls, Calls{"~"});
    EXPECT_FALSE(liveObjects.any());
}

}  // namespace
}  // namespace Meridax::VisualControls::Api
