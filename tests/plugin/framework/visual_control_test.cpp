#include "plugin/framework/visual_control.h"

#include "host_kit/memory/memory_host.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/framework/host/host_error.h"
#include "plugin/setup_document/meridax_dcom_node.h"
#include "tests/plugin/framework/doubles/counted_host.h"
#include "tests/plugin/framework/doubles/probe_object.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Meridax::VisualControls::Api {
namespace {

using Host::DataPosition;
using ::Rotavue::HostKit::MemoryHost;
using ::Rotavue::HostKit::operation;

TEST(VisualControl, StartsWithoutHostAndWithTheCursorAtZero) {
    const VisualControl control;
    EXPECT_EQ(control.sampleCursor, 0);
    EXPECT_FALSE(control.hostApp);
    EXPECT_FALSE(control.hostControl);
}

TEST(VisualControl, FreshControlAnswersWithoutAHost) {
    VisualControl control;
    EXPECT_TRUE(control.acceptsChannel(nullptr));
    EXPECT_TRUE(control.acceptsGroup(nullptr));
    EXPECT_FALSE(control.canCopyToClipboard());
    EXPECT_EQ(control.clipboardText(), L"");
}

TEST(VisualControl, ReleasesTheAppBeforeTheHostControl) {
    std::vector<std::string> log;
    Host::CountedApp app("app", log);
    Host::CountedControl hostControl("control", log);
    auto control = std::make_unique<VisualControl>();
    control->hostApp = Host::Ref<Host::IHostApp>::share(&app);
    control->hostControl = Host::Ref<Host::IHostVisualControl>::share(&hostControl);
    log.clear();
    control.reset();
    EXPECT_EQ(log, (std::vector<std::string>{"release app", "release control"}));
}

TEST(VisualControl, DataRequestBeforeAttachmentRaisesInvalidPointer) {
    VisualControl control;
    DataPosition first;
    DataPosition second;
    try {
        control.requestData(first, second);
        ADD_FAILURE() << "went on";
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, 0x80004003U);
    }
}

/// A base control that is attached to a host in memory.
class DataWindow : public testing::Test {
protected:
    DataWindow() { control.hostApp = host.app(); }

    void request() { control.requestData(first, second); }

    std::uint32_t thrownStatus() {
        try {
            request();
            return 0;
        } catch (const Host::HostError& error) {
            return error.status;
        }
    }

    MemoryHost host;
    ::Rotavue::HostKit::HostFacts& facts = host.description.host;
    VisualControl control;
    DataPosition first;
    DataPosition second;
};

TEST_F(DataWindow, HasOneBlocksLengthAboutTheCursor) {
    facts.blockSize = 5;
    facts.currentPosition = {2, 3};  // sample 13; half of 5 is 2
    facts.lastPosition = {100, 0};
    request();
    EXPECT_EQ(first, (DataPosition{2, 1}));   // 11
    EXPECT_EQ(second, (DataPosition{3, 0}));  // 15
}

TEST_F(DataWindow, IsHalfAsLongAtTheStartOfTheData) {
    facts.blockSize = 10;
    facts.currentPosition = {0, 0};
    facts.lastPosition = {9, 9};
    request();
    EXPECT_EQ(first, (DataPosition{0, 0}));
    EXPECT_EQ(second, (DataPosition{0, 5}));
}

TEST_F(DataWindow, EndsWithTheData) {
    facts.blockSize = 10;
    facts.currentPosition = {9, 8};  // 98
    facts.lastPosition = {9, 9};     // 99, below 98 + 5
    request();
    EXPECT_EQ(first, (DataPosition{9, 3}));
    EXPECT_EQ(second, (DataPosition{9, 9}));
}

TEST_F(DataWindow, NegativePositionKeepsANegativeOffset) {
    facts.blockSize = 10;
    facts.currentPosition = {0, 2};
    facts.firstPosition = {-5, 0};
    facts.lastPosition = {9, 9};
    request();
    EXPECT_EQ(first, (DataPosition{0, -3}));  // 2 - 5
}

TEST_F(DataWindow, IsComputedInSixtyFourBits) {
    constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();
    facts.blockSize = Largest;
    facts.currentPosition = {Largest, 0};
    facts.lastPosition = {Largest, Largest};
    request();
    // Half a block before and behind: (2^31 - 1) / 2 = 1073741823.
    EXPECT_EQ(first, (DataPosition{Largest - 1, 1073741824}));
    EXPECT_EQ(second, (DataPosition{Largest, 1073741823}));
}

TEST_F(DataWindow, BlockSizeOfZeroRaisesInvalidArgument) {
    facts.blockSize = 0;
    EXPECT_EQ(thrownStatus(), 0x80070057U);
}

TEST_F(DataWindow, NegativeBlockSizeDividesAsItStands) {
    facts.blockSize = -4;
    facts.currentPosition = {-3, 1};  // 13; half is -2, so the window is turned over
    facts.lastPosition = {-25, 0};    // 100
    request();
    EXPECT_EQ(first, (DataPosition{-3, 3}));   // 15
    EXPECT_EQ(second, (DataPosition{-2, 3}));  // 11
}

TEST_F(DataWindow, FetchesTheDataObjectAfreshForEachRead) {
    host.record();
    request();
    EXPECT_EQ(host.calls(),
              (std::vector<std::string>{
                  "IHostApp.getData() -> \"data\"", "IHostData.getCurrentPosition() -> [0, 0]",
                  "IHostApp.getData() -> \"data\"", "IHostData.getLastPosition() -> [0, 0]",
                  "IHostApp.getData() -> \"data\"", "IHostData.getFirstPosition() -> [0, 0]",
                  "IHostApp.getData() -> \"data\"", "IHostData.getBlockSize() -> 1000"}));
    EXPECT_EQ(host.ledger.held(), std::vector<std::string>{"app x 1"});
}

TEST_F(DataWindow, NullDataObjectRaisesInvalidPointer) {
    host.gate.nullObject(1);
    EXPECT_EQ(thrownStatus(), 0x80004003U);
}

TEST_F(DataWindow, FailedReadPasses) {
    host.fail(operation("IHostData.getLastPosition"), 1, 0x80004004U);
    EXPECT_EQ(thrownStatus(), 0x80004004U);
}

struct ObjectOperation {
    const char* name;
    std::function<void(VisualControl&, Host::Ref<Host::IHostObject>)> call;
};

class ObjectArgument : public testing::TestWithParam<ObjectOperation> {};

TEST_P(ObjectArgument, IsReleasedByTheBaseOperation) {
    std::vector<std::string> log;
    Host::ProbeObject object("object", log);
    object.count = 1;
    VisualControl control;
    GetParam().call(control, Host::Ref<Host::IHostObject>::adopt(&object));
    EXPECT_EQ(object.count, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Base, ObjectArgument,
    testing::Values(ObjectOperation{"acceptsGroup",
                                    [](auto& control, auto object) {
                                        control.acceptsGroup(std::move(object));
                                    }},
                    ObjectOperation{"onGroupChanged",
                                    [](auto& control, auto object) {
                                        control.onGroupChanged(std::move(object));
                                    }},
                    ObjectOperation{"onPropertyEvent",
                                    [](auto& control, auto object) {
                                        control.onPropertyEvent(L"text", std::move(object), 1);
                                    }}),
    [](const auto& parameter) { return parameter.param.name; });

TEST(VisualControl, BaseOperationReleasesAHostObject) {
    MemoryHost host;
    VisualControl control;
    control.acceptsChannel(host.channel("orbit"));
    control.buildProperties(host.panel());
    control.fillProperties(host.panel());
    control.readProperty(L"Name", host.widget(L"Name").offered<Host::IHostPropertyControl>());
    EXPECT_EQ(host.references(), 0);
}

TEST(VisualControl, OtherBaseOperationsTouchNothing) {
    MemoryHost host;
    VisualControl control;
    control.hostApp = host.app();
    control.hostControl = host.control();
    host.record();
    control.onClose();
    control.onAttached();
    control.draw({});
    control.onMouseUp(0, {}, 1, 2);
    control.onMouseDown(0, {}, 1, 2);
    control.onMouseEnter();
    control.onMouseLeave();
    control.onMouseMove({}, 1, 2);
    control.onMouseWheel({}, 1, 2, true);
    control.onMouseWheel({}, 1, 2, false);
    control.onChannelsChanged(0);
    Utils::Dcom::Utils::MeridaxDCOMNode node(host.document(), host.node());
    control.persistSetup(node);
    EXPECT_TRUE(host.calls().empty());
    EXPECT_EQ(control.sampleCursor, 0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Api
