#include "plugin/framework/bridge.h"
#include "plugin/framework/message_codes.h"
#include "tests/plugin/framework/doubles/clipboard_steps.h"
#include "tests/support/memory_meter.h"

#include <gtest/gtest.h>

/// Draws and pointer messages come at the host's rate: beyond the copy of the list, the bridge
/// takes nothing from the heap for them.
namespace Meridax::VisualControls::Api {
namespace {

/// Eight zeros.
class Zeros final : public ArgumentList {
public:
    std::int32_t lowerBound() const override { return 0; }
    std::int32_t upperBound() const override { return 7; }
    Host::Ref<Host::IHostObject> objectAt(std::int32_t /*position*/) const override { return {}; }
    std::wstring textAt(std::int32_t /*position*/) const override { return {}; }
    std::int32_t integerAt(std::int32_t /*position*/) const override { return 0; }
    std::uint16_t wordAt(std::int32_t /*position*/) const override { return 0; }
    std::uint8_t byteAt(std::int32_t /*position*/) const override { return 0; }
};

class ZeroArguments final : public MessageArguments {
public:
    std::unique_ptr<ArgumentList> copy() const override { return std::make_unique<Zeros>(); }
};

struct Cost {
    MessageCode code;
    std::int64_t allocations;
};

class MessageCost : public testing::TestWithParam<Cost> {
protected:
    ControlMaker makeControl_ = [] { return std::make_unique<VisualControl>(); };
    ClipboardSteps clipboard_;
    LiveObjects liveObjects_;
    BridgeNeeds needs_{makeControl_, clipboard_, liveObjects_};
    Host::Ref<IMeridaxPlugin> plugin_ =
        VisualControlBridge::create(needs_).offered<IMeridaxPlugin>();
};

TEST_P(MessageCost, IsTheCopyOfTheListAlone) {
    const ZeroArguments arguments;
    const std::int64_t before = Tests::MemoryMeter::tried();
    plugin_->message(static_cast<std::uint32_t>(GetParam().code), &arguments, nullptr);
    EXPECT_EQ(Tests::MemoryMeter::tried() - before, GetParam().allocations);
}

INSTANTIATE_TEST_SUITE_P(
    AtTheHostsRate, MessageCost,
    testing::Values(Cost{MessageCode::WheelForward, 1}, Cost{MessageCode::WheelBackward, 1},
                    Cost{MessageCode::ButtonReleased, 1}, Cost{MessageCode::ButtonPressed, 1},
                    Cost{MessageCode::PointerMoved, 1}, Cost{MessageCode::PointerEntered, 0},
                    Cost{MessageCode::PointerLeft, 0}, Cost{MessageCode::Draw, 1}));

}  // namespace
}  // namespace Meridax::VisualControls::Api
