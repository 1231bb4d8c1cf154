// Hosts that lack a piece of the panel or fail while it is built or filled.

#include "tests/plugin/settings/panel_test.h"

#include "plugin/framework/host/host_object.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

namespace HostKit = ::Rotavue::HostKit;

class FailingPanel : public PanelTest {
protected:
    void answerNull(std::string_view operation) {
        HostKit::Operations nulls;
        nulls.set(HostKit::indexOf(HostKit::findOperation(operation).value()));
        host.gate.setNulls(nulls);
    }

    std::uint32_t statusOfBuilding() {
        return statusOf([&] { control.buildProperties(host.panel()); });
    }

    std::uint32_t statusOfFilling() {
        return statusOf([&] { control.fillProperties(host.panel()); });
    }
};

TEST_F(FailingPanel, RaisesInvalidPointerWhereItIsNull) {
    EXPECT_EQ(statusOf([&] { control.buildProperties(nullptr); }), 0x80004003U);
    EXPECT_EQ(statusOf([&] { control.fillProperties(nullptr); }), 0x80004003U);
}

TEST_F(FailingPanel, RaisesInvalidPointerWhereAPageIsNull) {
    EXPECT_EQ(statusOfFilling(), 0x80004003U) << "no page was ever added";
    EXPECT_EQ(key.propertyRoot, nullptr);
    answerNull("IHostPropertyPanel.AddPage");
    EXPECT_EQ(statusOfBuilding(), 0x80004003U);
}

TEST_F(FailingPanel, RaisesInvalidPointerWhereAWidgetThatIsNeededIsNull) {
    for (const char* operation :
         {"IHostPropertyPage.AddNumberEdit", "IHostPropertyPage.AddCheckBox",
          "IHostPropertyPage.AddComboBox", "IHostPropertyPage.AddColorEdit",
          "IHostPropertyPage.AddFloatEdit"}) {
        answerNull(operation);
        EXPECT_EQ(statusOfBuilding(), 0x80004003U) << operation;
    }
}

TEST_F(FailingPanel, RaisesTheFailureOfACallAndKeepsWhatWasDone) {
    buildAndFill();
    key.graph.setTickCount(11);
    key.graph.setSingleAxis(false);
    host.fail(HostKit::operation("IHostCheckBox.SetChecked"), 1, 0x80004004);
    EXPECT_EQ(statusOfFilling(), 0x80004004U);
    EXPECT_EQ(host.widget(L"TickCount").offered<Host::IHostNumberEdit>()->GetValue(), 11);
    EXPECT_TRUE(host.widget(L"SingleAxis").offered<Host::IHostCheckBox>()->GetChecked());
}

// An object that is no widget at all.
class Stranger final : public Host::IHostObject {
public:
    void retain() noexcept override { ++references_; }
    void release() noexcept override { --references_; }
    void* offer(const Host::Guid&) override { return nullptr; }

private:
    int references_ = 0;
};

// A panel whose one page finds the same object under every name.
class StrangePanel final : public Host::IHostPropertyPanel, public Host::IHostPropertyPage {
public:
    explicit StrangePanel(Host::IHostObject& found) : found_(found) {}

    void retain() noexcept override {}
    void release() noexcept override {}
    void* offer(const Host::Guid&) override { return nullptr; }

    Host::Ref<Host::IHostPropertyPage> GetPage(const std::wstring&) override {
        return Host::Ref<Host::IHostPropertyPage>::share(this);
    }
    Host::Ref<Host::IHostPropertyPage> AddPage(const std::wstring&) override { return nullptr; }
    void AddGroup(const std::wstring&) override {}
    Host::Ref<Host::IHostObject> FindControl(const std::wstring&) override {
        return Host::Ref<Host::IHostObject>::share(&found_);
    }
    Host::Ref<Host::IHostNumberEdit> AddNumberEdit(const std::wstring&,
                                                   const std::wstring&) override {
        return nullptr;
    }
    Host::Ref<Host::IHostColorEdit> AddColorEdit(const std::wstring&,
                                                 const std::wstring&) override {
        return nullptr;
    }
    Host::Ref<Host::IHostFloatEdit> AddFloatEdit(const std::wstring&,
                                                 const std::wstring&) override {
        return nullptr;
    }
    Host::Ref<Host::IHostComboBox> AddComboBox(const std::wstring&, const std::wstring&) override {
        return nullptr;
    }
    Host::Ref<Host::IHostCheckBox> AddCheckBox(const std::wstring&, const std::wstring&) override {
        return nullptr;
    }

private:
    Host::IHostObject& found_;
};

TEST_F(FailingPanel, RaisesInvalidPointerForAFoundObjectThatIsNoPropertyControl) {
    Stranger stranger;
    StrangePanel panel(stranger);
    const auto fill = [&] {
        control.fillProperties(Host::Ref<Host::IHostPropertyPanel>::share(&panel));
    };
    EXPECT_EQ(statusOf(fill), 0x80004003U);
    key.propertyRoot = nullptr;
}

TEST_F(FailingPanel, RaisesInvalidPointerForAPropertyControlOfAnotherKind) {
    const auto bare = host.widget(L"a widget that is none of the panel's");
    StrangePanel panel(*bare);
    const auto fill = [&] {
        control.fillProperties(Host::Ref<Host::IHostPropertyPanel>::share(&panel));
    };
    EXPECT_EQ(statusOf(fill), 0x80004003U);
    key.propertyRoot = nullptr;
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
