// Hosts that lack a piece of the panel or fail while it is built or filled.

#include "plugin/framework/host/host_object.h"
#include "tests/plugin/settings/panel_test.h"
#include "tests/plugin/settings/strange_panel.h"

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

// A host that has the control lose its page while a widget takes its value.
class LosingItsPage final : public HostKit::CallWatcher {
public:
    explicit LosingItsPage(RotavueVisualControlAccess& key) : key_(key) {}

    void onCall(HostKit::Operation operation) override {
        if (operation == HostKit::operation("IHostNumberEdit.SetValue"))
            key_.propertyRoot = nullptr;
    }

    void onReturn(const HostKit::Call&) override {}

private:
    RotavueVisualControlAccess& key_;
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

TEST_F(FailingPanel, KeepsWhatTheFirstPageGotWhereTheSecondFails) {
    buildAndFill();
    key.graph.setTickCount(11);
    key.graph.setDisplayType(1);
    host.fail(HostKit::operation("IHostPropertyPanel.GetPage"), 2, 0x80004004);
    EXPECT_EQ(statusOfFilling(), 0x80004004U);
    EXPECT_EQ(key.propertyRoot, host.panel()->GetPage(L"Axis"));
    EXPECT_EQ(host.widget(L"TickCount").offered<Host::IHostNumberEdit>()->GetValue(), 11);
    EXPECT_EQ(host.widget(L"DisplayType").offered<Host::IHostComboBox>()->GetIndex(), 0);
}

TEST_F(FailingPanel, RaisesInvalidPointerWhereItsPageIsLostInTheMiddle) {
    buildAndFill();
    LosingItsPage watcher(key);
    host.gate.watch(&watcher, HostKit::allGroups());
    EXPECT_EQ(statusOfFilling(), 0x80004003U);
    host.gate.watch(nullptr, {});
    EXPECT_EQ(key.propertyRoot, nullptr);
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

TEST_F(FailingPanel, TellsWhichInterfaceFailed) {
    buildAndFill();
    const std::pair<const char*, Host::Guid> cases[] = {
        {"IHostPropertyPanel.GetPage", Host::IHostPropertyPanel::Identifier},
        {"IHostPropertyPage.FindControl", Host::IHostPropertyPage::Identifier},
        {"IHostPropertyControl.SetEnabled", Host::IHostPropertyControl::Identifier},
        {"IHostColorEdit.SetColor", Host::IHostColorEdit::Identifier},
    };
    for (const auto& [operation, identifier] : cases) {
        host.fail(HostKit::findOperation(operation).value());
        try {
            control.fillProperties(host.panel());
            ADD_FAILURE() << operation << " did not fail";
        } catch (const Host::HostError& error) {
            EXPECT_EQ(error.interfaceId, identifier) << operation;
        }
    }
}

// An object that is no widget at all, or that fails when it is asked what it is.
class Stranger final : public Host::IHostObject {
public:
    explicit Stranger(std::uint32_t status = Host::Status::NoInterface) : status_(status) {}

    void retain() noexcept override { ++references; }
    void release() noexcept override { --references; }
    void* offer(const Host::Guid&) override {
        if (status_ != Host::Status::NoInterface) throw Host::HostError(status_);
        return nullptr;
    }

    int references = 0;

private:
    std::uint32_t status_;
};

TEST_F(FailingPanel, RaisesInvalidPointerForAFoundObjectThatIsNoPropertyControl) {
    Stranger stranger;
    StrangePanel panel(&stranger);
    const auto fill = [&] {
        control.fillProperties(Host::Ref<Host::IHostPropertyPanel>::share(&panel));
    };
    EXPECT_EQ(statusOf(fill), 0x80004003U);
    EXPECT_EQ(stranger.references, 0);
    key.propertyRoot = nullptr;
}

TEST_F(FailingPanel, RaisesAnyOtherFailureOfThatQuestionAsItIs) {
    Stranger stranger(0x80010108);
    StrangePanel panel(&stranger);
    const auto fill = [&] {
        control.fillProperties(Host::Ref<Host::IHostPropertyPanel>::share(&panel));
    };
    EXPECT_EQ(statusOf(fill), 0x80010108U);
    EXPECT_EQ(stranger.references, 0);
    key.propertyRoot = nullptr;
}

// A page that the control alone holds, and that has itself dropped while it answers.
class DroppedPage final : public StrangePanel {
public:
    explicit DroppedPage(RotavueVisualControlAccess& key) : StrangePanel(nullptr), key_(key) {}

    void retain() noexcept override { ++references; }
    void release() noexcept override { --references; }

    Host::Ref<Host::IHostObject> FindControl(const std::wstring&) override {
        key_.propertyRoot = nullptr;
        referencesWhileAnswering = references;
        return nullptr;
    }

    int references = 0;
    int referencesWhileAnswering = 0;

private:
    RotavueVisualControlAccess& key_;
};

TEST_F(FailingPanel, HoldsItsPageWhileThatAnswers) {
    DroppedPage page(key);
    const auto fill = [&] {
        control.fillProperties(Host::Ref<Host::IHostPropertyPanel>::share(&page));
    };
    EXPECT_EQ(statusOf(fill), 0x80004003U) << "there is no page for the next widget";
    EXPECT_EQ(page.referencesWhileAnswering, 2) << "one as the panel, one as the page";
    EXPECT_EQ(page.references, 0);
}

TEST_F(FailingPanel, RaisesInvalidPointerForAPropertyControlOfAnotherKind) {
    const auto bare = host.widget(L"a widget that is none of the panel's");
    StrangePanel panel(bare.get());
    const auto fill = [&] {
        control.fillProperties(Host::Ref<Host::IHostPropertyPanel>::share(&panel));
    };
    EXPECT_EQ(statusOf(fill), 0x80004003U);
    key.propertyRoot = nullptr;
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
