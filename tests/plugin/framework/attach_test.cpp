#include "plugin/framework/version_gate.h"
#include "tests/plugin/framework/doubles/bridge_fixture.h"
#include "tests/plugin/framework/doubles/counted_host.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

/// Message 2 and the version gate in it.
namespace Meridax::VisualControls::Api {
namespace {

using Calls = std::vector<std::string>;
constexpr auto Refused = static_cast<std::int32_t>(0x80004004U);

struct Gate {
    Host::HostVersion version;
    bool passes;
};

class VersionGate : public BridgeFixture, public testing::WithParamInterface<Gate> {};

TEST_P(VersionGate, AdmitsTheVersionsFromTheLeastOneOn) {
    EXPECT_EQ(isRecentEnough(GetParam().version), GetParam().passes);
    host.description.host.version = GetParam().version;
    EXPECT_EQ(attach(), GetParam().passes ? 0 : Refused);
    EXPECT_EQ(record.calls, GetParam().passes ? Calls{"onAttached"} : Calls{});
}

INSTANTIATE_TEST_SUITE_P(Versions, VersionGate,
                         testing::Values(Gate{{2, 99, 99999999}, false},
                                         Gate{{3, 7, 99999999}, false},
                                         Gate{{3, 8, 19051299}, false},
                                         Gate{{3, 8, 19051300}, true}, Gate{{3, 9, 0}, true},
                                         Gate{{4, 0, 0}, true}, Gate{{4, -1, -1}, true},
                                         Gate{{-4, 9, 0}, false}));

class Attach : public BridgeFixture {};

TEST_F(Attach, StoresBothObjectsInBridgeAndControl) {
    attach();
    EXPECT_EQ(record.control->hostApp, host.app());
    EXPECT_EQ(record.control->hostControl, host.control());
    EXPECT_EQ(host.ledger.held(), (Calls{"app x 2", "control x 2"}));
    EXPECT_EQ(result.text, "none");
}

TEST_F(Attach, RefusedHostReadsWhy) {
    host.description.host.version = {3, 8, 19051299};
    host.record();
    attach();
    EXPECT_EQ(host.calls(),
              (Calls{"IHostApp.getVersion() -> [3, 8, 19051299]",
                     "IHostApp.showMessage(\"Custom Visual Control needs Meridax R3 SP8 or "
                     "newer.\")"}));
}

TEST_F(Attach, RefusedHostIsServedAllTheSame) {
    host.description.host.version = {2, 99, 0};
    EXPECT_EQ(attach(), Refused);
    EXPECT_EQ(record.control->hostApp, host.app());
    EXPECT_EQ(send(MessageCode::Close), 0);
    EXPECT_EQ(record.calls, Calls{"onClose"});
}

TEST_F(Attach, MayComeAgain) {
    host.description.host.version = {2, 99, 0};
    EXPECT_EQ(attach(), Refused);
    host.description.host.version = {4, 0, 0};
    EXPECT_EQ(attach(), 0);
    EXPECT_EQ(record.calls, Calls{"onAttached"});
    EXPECT_EQ(host.references(), 4);
}

TEST_F(Attach, WithOneElementStoresTheAppAndFails) {
    const ListArguments arguments{object(host.app())};
    EXPECT_EQ(thrownBy(MessageCode::Attach, &arguments), 0x80070057U);
    EXPECT_EQ(record.control->hostApp, host.app());
    EXPECT_FALSE(record.control->hostControl);
    EXPECT_EQ(host.ledger.held(), Calls{"app x 3"});  // the list, the bridge and the control
    EXPECT_EQ(record.calls, Calls{});
}

TEST_F(Attach, NullAppRaisesInvalidPointerAfterBothWereStored) {
    const ListArguments arguments{nullObject(), object(host.control())};
    EXPECT_EQ(thrownBy(MessageCode::Attach, &arguments), 0x80004003U);
    EXPECT_EQ(record.control->hostControl, host.control());
}

TEST_F(Attach, FailedVersionCallPasses) {
    host.fail(::Rotavue::HostKit::operation("IHostApp.getVersion"));
    const ListArguments arguments{object(host.app()), object(host.control())};
    EXPECT_EQ(thrownBy(MessageCode::Attach, &arguments), 0x80004005U);
    EXPECT_EQ(record.calls, Calls{});
}

TEST_F(Attach, RetainsTheNewObjectBeforeItReleasesTheOldOne) {
    std::vector<std::string> log;
    Host::CountedApp before("old", log);
    Host::CountedApp after("new", log);
    const auto share = [](Host::CountedApp& app) {
        return object(Host::Ref<Host::IHostApp>::share(&app));
    };
    send(MessageCode::Attach, {share(before), nullObject()});
    log.clear();
    send(MessageCode::Attach, {share(after), nullObject()});
    int held = 0;
    for (const std::string& line : log) {
        if (line == "retain new") ++held;
        if (line == "release new") --held;
        if (line == "release old") {
            EXPECT_GT(held, 0);
        }
    }
    EXPECT_EQ(before.count, 0);
    EXPECT_EQ(after.count, 2);
    plugin = nullptr;
}

TEST_F(Attach, FromInsideAMessageKeepsWhatItReplacesUntilTheOutermostEnds) {
    std::vector<std::string> log;
    Host::CountedApp first("first", log);
    Host::CountedApp second("second", log);
    Host::CountedApp third("third", log);
    const auto handIn = [&](Host::CountedApp& app) {
        send(MessageCode::Attach, {object(Host::Ref<Host::IHostApp>::share(&app)), nullObject()});
    };
    handIn(first);
    bool isInside = false;
    record.during = [&] {
        if (std::exchange(isInside, true)) return;
        for (int i = 0; i < 3; ++i) {
            handIn(second);
            handIn(third);
        }
        EXPECT_GT(first.count, 0);
        EXPECT_GT(second.count, 0) << "calls on it may be under way";
    };
    send(MessageCode::Close);
    EXPECT_EQ(first.count, 0);
    EXPECT_EQ(second.count, 0);
    EXPECT_EQ(third.count, 2);
    plugin = nullptr;
}

}  // namespace
}  // namespace Meridax::VisualControls::Api
