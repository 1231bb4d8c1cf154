#include "tests/plugin/orbit_control/control_test.h"

#include <bit>
#include <memory>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(ControlState, StartsWithTheDocumentedDefaults) {
    RotavueVisualControl control;
    const RotavueVisualControlAccess key(control);
    EXPECT_EQ(control.sampleCursor, 0);
    EXPECT_FALSE(control.hostControl);
    EXPECT_FALSE(control.hostApp);
    EXPECT_FALSE(key.propertyRoot);
    EXPECT_FALSE(key.leftButtonHeld);
    EXPECT_EQ(key.viewZoom, 1.0);
    EXPECT_EQ(key.viewRotation, 0.0);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(key.rotationStep), 0x3f9921fb54442d18U);
    constexpr double Largest = 1.7976931348623157e+308;
    EXPECT_EQ(key.dataExtents.range(), (Range{Largest, -Largest, Largest, -Largest}));
    EXPECT_EQ(key.displayTime, 100.0);
    EXPECT_EQ(key.revolutions, 1);
    EXPECT_EQ(key.bearing, BearingConfig{});
    EXPECT_FALSE(key.showOnlyLastPosition);
    EXPECT_FALSE(key.tachoMissing);
    EXPECT_EQ(key.lastPointer, (Point{0.0, 0.0}));
    EXPECT_FALSE(key.dataRequestList);
    EXPECT_TRUE(key.bearingConfigs.empty());
}

TEST(ControlState, IsUsableWithoutAHostWhereNoHostIsNeeded) {
    RotavueVisualControl control;
    EXPECT_TRUE(control.canCopyToClipboard());
    EXPECT_NO_THROW(control.onClose());
    EXPECT_NO_THROW(control.onAttached());
    EXPECT_NO_THROW(control.onMouseEnter());
    EXPECT_NO_THROW(control.onMouseDown(0, {}, 1, 2));
    EXPECT_NO_THROW(control.onMouseUp(0, {}, 1, 2));
    EXPECT_NO_THROW(control.onMouseWheel({}, 1, 2, true));
    EXPECT_NO_THROW(control.onMouseLeave());
}

TEST(ControlState, NeedsAHostForTheRest) {
    RotavueVisualControl control;
    Host::DataPosition first;
    Host::DataPosition second;
    expectHostError(0x80004003, [&] { control.draw({}); });
    expectHostError(0x80004003, [&] { control.requestData(first, second); });
    expectHostError(0x80004003, [&] { control.onChannelsChanged(0); });
}

TEST_F(ControlTest, NotificationsReleaseWhatTheyWereGiven) {
    const std::int64_t attached = host.references();
    control.onGroupChanged(host.channel("c").offered<Host::IHostObject>());
    control.onPropertyEvent(L"text", host.channel("c").offered<Host::IHostObject>(), 7);
    EXPECT_EQ(host.references(), attached);
}

/// Writes down when it is released, and what of the host is still held then.
template <class Interface>
class Released : public Interface {
public:
    Released(std::string name, Lines& log, HostKit::MemoryHost& host)
        : name_(std::move(name)), log_(log), host_(host) {}

    void retain() noexcept override {}
    void release() noexcept override {
        log_.push_back(name_ + " with " + std::to_string(host_.references()) + " of the host");
    }
    void* offer(const Host::Guid&) override { return nullptr; }

protected:
    ~Released() = default;

private:
    std::string name_;
    Lines& log_;
    HostKit::MemoryHost& host_;
};

class ReleasedList final : public Released<Host::IHostChannelList> {
public:
    using Released::Released;
    void add(Host::IHostChannel&) override {}
    void clear() override {}
    std::int32_t getCount() override { return 0; }
    Host::Ref<Host::IHostChannel> getItem(std::int32_t) override { return nullptr; }
};

class ReleasedPage final : public Released<Host::IHostPropertyPage> {
public:
    using Released::Released;
    using Text = std::wstring;
    Host::Ref<Host::IHostObject> FindControl(const Text&) override { return nullptr; }
    void AddGroup(const Text&) override {}
    Host::Ref<Host::IHostCheckBox> AddCheckBox(const Text&, const Text&) override { return {}; }
    Host::Ref<Host::IHostComboBox> AddComboBox(const Text&, const Text&) override { return {}; }
    Host::Ref<Host::IHostFloatEdit> AddFloatEdit(const Text&, const Text&) override { return {}; }
    Host::Ref<Host::IHostColorEdit> AddColorEdit(const Text&, const Text&) override { return {}; }
    Host::Ref<Host::IHostNumberEdit> AddNumberEdit(const Text&, const Text&) override { return {}; }
};

TEST(ControlState, EndsWithTheRequestListThenThePageThenTheHost) {
    Lines log;
    HostKit::MemoryHost host;
    ReleasedList list("list", log, host);
    ReleasedPage page("page", log, host);
    {
        RotavueVisualControl control;
        RotavueVisualControlAccess key(control);
        control.hostApp = host.app();
        control.hostControl = host.control();
        key.propertyRoot = Host::Ref<Host::IHostPropertyPage>::adopt(&page);
        key.dataRequestList = Host::Ref<Host::IHostChannelList>::adopt(&list);
    }
    EXPECT_EQ(log, (Lines{"list with 2 of the host", "page with 2 of the host"}));
    EXPECT_EQ(host.references(), 0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
